#include "opciones.h"

#include <cstdlib>
#include <functional>

namespace lomaterra::lote {

const char* const kUso =
    "Uso: lomaterra-lote PROYECTO.cod COMANDO [COMANDO ...] [--respuestas SNSN...] "
    "[--por-defecto S|N] [--json SALIDA.json] [--guardar OTRO.cod] [--pdf INFORME.pdf] "
    "[--figura NOMBRE=ARCHIVO.png|.svg ...] [--historias NODOS:ELEMENTOS] [--modo N]\n"
    "\n"
    "Lee el proyecto, corre los comandos del menú por su nombre de control (por ejemplo\n"
    "MétodoFellenius) y muestra lo que cada comando dijo y un resumen de los resultados.\n"
    "PasoAPasoDesacoplado, el cálculo sísmico paso a paso por modos desacoplados, no está en\n"
    "el menú y se corre solo por su nombre.\n"
    "\n"
    "  --respuestas SNSN...  responde a las preguntas, en orden, con S (sí) o N (no)\n"
    "  --por-defecto S|N     respuesta cuando se acaban las letras (N si no se da)\n"
    "  --json SALIDA.json    escribe la transcripción y el resumen en JSON\n"
    "  --guardar OTRO.cod    guarda el proyecto al terminar los comandos\n"
    "  --malla-json M.json   escribe las tablas de la malla de elementos finitos en JSON\n"
    "  --rigidez-json R.json lo mismo, con la diagonal de la matriz de rigidez y el vector de\n"
    "                        cargas armados por Elementotriangular\n"
    "  --pdf INFORME.pdf     escribe el informe de resultados del último cálculo (equilibrio límite,\n"
    "                        esfuerzos por elementos finitos o análisis sísmico)\n"
    "  --figura NOMBRE=ARCHIVO.png|.svg\n"
    "                        dibuja una figura del menú Gráfico por su nombre de control (por\n"
    "                        ejemplo GráficoGeometría=seccion.png); puede darse varias veces\n"
    "  --busqueda OPCIONES.json\n"
    "                        opciones del comando BúsquedaCírculoCrítico: x1, y1, x2, y2,\n"
    "                        divisionesX, divisionesY, radioMínimo, radioMáximo, pasoRadio,\n"
    "                        cotasTangencia [..], dovelas, método \"Bishop\"|\"Janbu\",\n"
    "                        xSalidaMínima, xSalidaMáxima, hilos, usar true|false\n"
    "  --historias NODOS:ELEMENTOS\n"
    "                        limita las historias sísmicas del JSON a esos nodos y elementos\n"
    "                        (por ejemplo 3,7:1,2); sin ella van todos\n"
  "  --ayuda               muestra este texto\n"
    "\n"
    "Estado de salida: 0 los comandos corrieron (digan lo que digan sus mensajes); 1 una falla\n"
    "no prevista terminó un comando, o no se pudo guardar lo pedido; 2 uso incorrecto o proyecto\n"
    "que no se pudo leer.\n";

namespace {

bool SoloSN(const std::string& s) {
  for (char c : s)
    if (c != 'S' && c != 'N' && c != 's' && c != 'n') return false;
  return true;
}

std::string Mayúscula(std::string s) {
  for (char& c : s)
    if (c == 's') c = 'S';
    else if (c == 'n') c = 'N';
  return s;
}

// The text ends with the extension, in either case.
bool Termina(const std::string& texto, const std::string& extensión) {
  if (texto.size() <= extensión.size()) return false;
  std::string final = texto.substr(texto.size() - extensión.size());
  for (char& c : final)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return final == extensión;
}

struct OpciónConValor {
  const char* nombre;
  // Stores the value; returns an error message or an empty text.
  std::function<std::string(const std::string&, Opciones&)> guardar;
};

const std::vector<OpciónConValor>& TablaOpciones() {
  static const std::vector<OpciónConValor> t = {
      {"--respuestas",
       [](const std::string& v, Opciones& o) -> std::string {
         if (!SoloSN(v)) return "--respuestas admite solo las letras S y N, y se dio \"" + v + "\".";
         o.respuestas = Mayúscula(v);
         return "";
       }},
      {"--por-defecto",
       [](const std::string& v, Opciones& o) -> std::string {
         if (v.size() != 1 || !SoloSN(v)) return "--por-defecto admite S o N, y se dio \"" + v + "\".";
         o.porDefecto = Mayúscula(v) == "S";
         return "";
       }},
      {"--busqueda",
       [](const std::string& v, Opciones& o) -> std::string {
         o.búsqueda = v;
         return "";
       }},
      {"--json",
       [](const std::string& v, Opciones& o) -> std::string {
         o.json = v;
         return "";
       }},
      {"--malla-json",
       [](const std::string& v, Opciones& o) -> std::string {
         o.mallaJson = v;
         return "";
       }},
      {"--rigidez-json",
       [](const std::string& v, Opciones& o) -> std::string {
         o.rigidezJson = v;
         return "";
       }},
      {"--historias",
       [](const std::string& v, Opciones& o) -> std::string {
         o.historias = v;
         return "";
       }},
      {"--modo",
       [](const std::string& v, Opciones& o) -> std::string {
         char* fin = nullptr;
         const long n = std::strtol(v.c_str(), &fin, 10);
         if (v.empty() || *fin != '\0' || n < 1)
           return "--modo necesita un número entero de modo desde 1, y se dio \"" + v + "\".";
         o.modo = v;
         return "";
       }},
      {"--guardar",
       [](const std::string& v, Opciones& o) -> std::string {
         o.guardar = v;
         return "";
       }},
      {"--pdf",
       [](const std::string& v, Opciones& o) -> std::string {
         if (!Termina(v, ".pdf")) return "--pdf necesita un archivo terminado en .pdf, y se dio \"" + v + "\".";
         o.pdf = v;
         return "";
       }},
      {"--figura",
       [](const std::string& v, Opciones& o) -> std::string {
         const auto igual = v.find('=');
         if (igual == std::string::npos || igual == 0 || igual + 1 >= v.size())
           return "--figura se escribe NOMBRE=ARCHIVO (por ejemplo GráficoGeometría=seccion.png), y se dio \"" +
                  v + "\".";
         const std::string archivo = v.substr(igual + 1);
         if (!Termina(archivo, ".png") && !Termina(archivo, ".svg"))
           return "--figura necesita un archivo terminado en .png o .svg, y se dio \"" + archivo + "\".";
         o.figuras.push_back({v.substr(0, igual), archivo});
         return "";
       }},
  };
  return t;
}

}  // namespace

std::string LeerArgumentos(const std::vector<std::string>& argumentos, Opciones& o) {
  std::vector<std::string> vistas;
  std::vector<std::string> posicionales;
  for (std::size_t i = 0; i < argumentos.size(); ++i) {
    const std::string& a = argumentos[i];
    if (a == "--ayuda" || a == "-h" || a == "--help") {
      o.ayuda = true;
      return "";
    }
    if (a.rfind("--", 0) == 0) {
      std::string nombre = a, valor;
      bool conValor = false;
      if (const auto igual = a.find('='); igual != std::string::npos) {
        nombre = a.substr(0, igual);
        valor = a.substr(igual + 1);
        conValor = true;
      }
      const OpciónConValor* opción = nullptr;
      for (const auto& t : TablaOpciones())
        if (nombre == t.nombre) opción = &t;
      if (!opción) return "Opción desconocida: " + nombre + ".";
      // Every option once, but for the figures: one --figura a figure.
      for (const auto& v : vistas)
        if (v == nombre && nombre != "--figura") return "La opción " + nombre + " se dio más de una vez.";
      vistas.push_back(nombre);
      if (!conValor) {
        if (i + 1 >= argumentos.size()) return "Falta el valor de la opción " + nombre + ".";
        valor = argumentos[++i];
      }
      if (valor.empty() && nombre != "--respuestas") return "La opción " + nombre + " necesita un valor.";
      if (auto error = opción->guardar(valor, o); !error.empty()) return error;
      continue;
    }
    posicionales.push_back(a);
  }
  if (posicionales.empty()) return "Falta el archivo del proyecto.";
  o.proyecto = posicionales.front();
  o.comandos.assign(posicionales.begin() + 1, posicionales.end());
  if (o.comandos.empty()) return "Falta al menos un comando (por ejemplo MétodoFellenius).";
  return "";
}

}  // namespace lomaterra::lote
