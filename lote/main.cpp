// lomaterra-lote: runs commands of the core on a project file without a window, for batch work
// and for acceptance checks.
//
//   lomaterra-lote PROYECTO.cod COMANDO [COMANDO ...] [--respuestas SNSN...] [--por-defecto S|N]
//                  [--json SALIDA.json] [--guardar OTRO.cod] [--pdf INFORME.pdf]
//                  [--figura NOMBRE=ARCHIVO.png|.svg ...] [--historias NODOS:ELEMENTOS]
//
// Each yes/no question takes the next letter of --respuestas, then the --por-defecto answer; a
// screen that a command opens is closed with its exit button and no change. Every box is printed
// as one line as it appears; a summary of the results follows.
#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "busqueda_lote.h"
#include "malla_json.h"
#include "opciones.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"
#include "resumen.h"
#include "resumen_elementos.h"
#include "resumen_sismico.h"
#include "resumen_modos.h"
#include "salida/graficos.h"
#include "salida/formas_modales.h"
#include "salida/malla_resultados.h"
#ifdef LOMATERRA_DIBUJO
#include "salida_lote.h"
#endif

namespace lomaterra::lote {
namespace {

constexpr int kBien = 0;
constexpr int kFallo = 1;
constexpr int kUsoIncorrecto = 2;

// The scripted interface that prints each box as soon as it is shown.
class InterfazLote : public InterfazGuionada {
 public:
  InterfazLote(const std::string& respuestas, bool porDefecto) : InterfazGuionada(respuestas, porDefecto) {}

  void HacerMensaje(const std::string& texto, const std::string& título) override {
    InterfazGuionada::HacerMensaje(texto, título);
    Emitir();
  }
  // The box's text goes on the output like every box; its detail (why a file could not be read,
  // and where) on the error output.
  void HacerMensajeDetallado(const std::string& texto, const std::string& título,
                             const std::string& detalle) override {
    InterfazGuionada::HacerMensajeDetallado(texto, título, detalle);
    Emitir();
    std::cerr << "lomaterra-lote: " << texto << ":\n";
    std::size_t desde = 0;
    while (desde <= detalle.size()) {
      const auto fin = std::min(detalle.find('\n', desde), detalle.size());
      std::cerr << "  " << detalle.substr(desde, fin - desde) << "\n";
      desde = fin + 1;
    }
  }
  bool HacerPregunta(const std::string& texto, const std::string& título) override {
    const bool r = InterfazGuionada::HacerPregunta(texto, título);
    Emitir();
    return r;
  }
  void HacerEstado(const std::string& texto) override {
    InterfazGuionada::HacerEstado(texto);
    Emitir();
  }
  void HacerAbrir(Pantalla& pantalla) override {
    InterfazGuionada::HacerAbrir(pantalla);
    Emitir();
  }
  std::optional<std::string> HacerElegirArchivoAbrir(const std::string& filtro, int índice) override {
    auto r = InterfazGuionada::HacerElegirArchivoAbrir(filtro, índice);
    Emitir();
    return r;
  }
  std::optional<std::string> HacerElegirArchivoGuardar(const std::string& filtro, int índice) override {
    auto r = InterfazGuionada::HacerElegirArchivoGuardar(filtro, índice);
    Emitir();
    return r;
  }
  void HacerAyuda(const std::string& archivo) override {
    InterfazGuionada::HacerAyuda(archivo);
    Emitir();
  }

  // Prints what has not been printed yet. A screen's own line is recorded before the boxes it
  // shows, so the order on the output is the order of the run.
  void Emitir() {
    const auto& t = Transcripción();
    for (; impresas_ < t.size(); ++impresas_) {
      líneas_.push_back(Línea(t[impresas_]));
      std::cout << líneas_.back() << '\n';
    }
    std::cout.flush();
  }
  const std::vector<std::string>& Líneas() const { return líneas_; }

 private:
  std::size_t impresas_ = 0;
  std::vector<std::string> líneas_;
};

int UsoIncorrecto(const std::string& mensaje) {
  const std::string uso = kUso;
  std::cerr << "lomaterra-lote: " << mensaje << "\n" << uso.substr(0, uso.find('\n') + 1)
            << "Escriba lomaterra-lote --ayuda para ver todas las opciones.\n";
  return kUsoIncorrecto;
}

// Every command must be a built menu entry; nothing runs unless all are.
std::string ComprobarComandos(const std::vector<EntradaMenú>& árbol, const std::vector<std::string>& comandos) {
  for (const auto& c : comandos) {
    const EntradaMenú* e = BuscarEntrada(árbol, c);
    if (!e && ComandosSinMenú().count(c)) continue;
    if (!e) return "Comando desconocido: " + c + ". Los comandos se nombran por el nombre de control del menú (por ejemplo MétodoFellenius).";
    if (e->EsSubmenú) return c + " es un menú, no un comando: nombre uno de sus comandos.";
    if (!e->acción) return "El comando " + c + " todavía no está disponible en esta versión de Lomaterra.";
  }
  return "";
}

// Every figure must be an entry of the menu "Gráfico"; and drawing needs a build with Qt.
std::string ComprobarSalidas(const Opciones& o) {
  for (const auto& [nombre, archivo] : o.figuras) {
    bool conocida = false;
    for (const auto& n : NombresDeGráficos()) conocida |= n == nombre;
    conocida |= EsFiguraDeMalla(nombre) || EsFiguraFormaModal(nombre);
    if (!conocida) {
      std::string r = "Figura desconocida: " + nombre + ". Las figuras son:";
      for (const auto& n : NombresDeGráficos()) r += " " + n;
      for (const auto& n : NombresDeFigurasDeMalla()) r += " " + n;
      return r + " FormaModal (el modo elegido) FormaModal1, FormaModal2...";
    }
  }
#ifndef LOMATERRA_DIBUJO
  if (o.pdf || !o.figuras.empty())
    return "Esta compilación de lomaterra-lote no dibuja (se construyó sin Qt): --pdf y --figura "
           "no están disponibles.";
#endif
  return "";
}

// The report and the figures asked for, after the commands. False when one could not be written.
bool EscribirSalidas(const Opciones& o, const Proyecto& p) {
  bool bien = true;
#ifdef LOMATERRA_DIBUJO
  std::string error;
  if (o.pdf) {
    if (EscribirInformeDeResultados(p, *o.pdf, error)) {
      std::cout << "[informe] " << *o.pdf << '\n';
    } else {
      std::cerr << "lomaterra-lote: " << error << "\n";
      bien = false;
    }
  }
  for (const auto& [nombre, archivo] : o.figuras) {
    if (EscribirFiguraDelMenú(p, nombre, archivo, error)) {
      std::cout << "[figura] " << nombre << " | " << archivo << '\n';
    } else {
      std::cerr << "lomaterra-lote: " << error << "\n";
      bien = false;
    }
  }
  std::cout.flush();
#else
  (void)o;
  (void)p;
#endif
  return bien;
}

// What the project path names, when it is not a file that can be read: empty when it is one.
std::string ProblemaDelProyecto(const std::string& ruta) {
  namespace fs = std::filesystem;
  std::error_code ec;
  const fs::file_status estado = fs::status(ruta, ec);
  if (!fs::exists(estado)) return "no existe el archivo de proyecto \"" + ruta + "\".";
  if (fs::is_directory(estado)) return "\"" + ruta + "\" es una carpeta, no un archivo de proyecto.";
  if (!fs::is_regular_file(estado))
    return "\"" + ruta + "\" no es un archivo común (es un dispositivo, una tubería o un enchufe), no un archivo de proyecto.";
  return "";
}

// An output that would write over the project itself, under its own name or another path to the
// same file (a link, "./", a second name). Empty when every output is another file.
std::string SalidaSobreElProyecto(const Opciones& o) {
  namespace fs = std::filesystem;
  std::vector<std::pair<std::string, std::string>> salidas;
  if (o.json) salidas.push_back({"--json", *o.json});
  if (o.guardar) salidas.push_back({"--guardar", *o.guardar});
  if (o.pdf) salidas.push_back({"--pdf", *o.pdf});
  if (o.mallaJson) salidas.push_back({"--malla-json", *o.mallaJson});
  if (o.rigidezJson) salidas.push_back({"--rigidez-json", *o.rigidezJson});
  for (const auto& [nombre, archivo] : o.figuras) salidas.push_back({"--figura", archivo});
  for (const auto& [opción, ruta] : salidas) {
    std::error_code ec;
    const bool mismo = ruta == o.proyecto || fs::equivalent(ruta, o.proyecto, ec) ||
                       fs::weakly_canonical(ruta, ec) == fs::weakly_canonical(o.proyecto, ec);
    if (mismo)
      return opción + " nombra el propio archivo de proyecto (\"" + ruta +
             "\"): se escribiría sobre él. Dé otro nombre para la salida.";
  }
  return "";
}

int Correr(const std::vector<std::string>& argumentos) {
  Opciones o;
  if (auto error = LeerArgumentos(argumentos, o); !error.empty()) return UsoIncorrecto(error);
  if (o.ayuda) {
    std::cout << kUso;
    return kBien;
  }
  const std::vector<EntradaMenú> árbol = ÁrbolDeMenús();
  if (auto error = ComprobarComandos(árbol, o.comandos); !error.empty()) return UsoIncorrecto(error);
  if (auto error = ComprobarSalidas(o); !error.empty()) return UsoIncorrecto(error);

  if (auto error = ProblemaDelProyecto(o.proyecto); !error.empty()) {
    std::cerr << "lomaterra-lote: " << error << "\n";
    return kUsoIncorrecto;
  }
  if (auto error = SalidaSobreElProyecto(o); !error.empty()) return UsoIncorrecto(error);

  std::optional<SelecciónHistorias> historias;
  if (o.historias) {
    historias.emplace();
    if (auto error = LeerSelecciónHistorias(*o.historias, *historias); !error.empty()) return UsoIncorrecto(error);
  }

  Proyecto p;
  InterfazLote ui(o.respuestas, o.porDefecto);
  if (o.modo)
    ui.GuionPantalla("ResultadosDeLasFrecuenciasNaturales", [modo = *o.modo](Pantalla& pantalla, Interfaz& i) {
      pantalla.texto("TextoModoDeVibración") = modo;
      pantalla.Pulsar("BotónAceptar", i);
    });
  if (!LeerProyecto(p, o.proyecto, ui)) {
    std::cerr << "lomaterra-lote: no se pudo leer el proyecto \"" << o.proyecto << "\".\n";
    return kUsoIncorrecto;
  }
  if (historias)
    if (auto error = FueraDeLaMalla(*historias, p); !error.empty()) return UsoIncorrecto(error);
  // As the Open command leaves the window.
  p.Ventana.NombreArchivo = o.proyecto;
  p.Ventana.Título = TítuloDeArchivo(o.proyecto) + " - Lomaterra";
  p.DatosGuardados = false;

  bool fallo = false;
  std::string qué;  // what failed, for the summary
  std::string búsqueda;
  for (const auto& c : o.comandos) {
    const EntradaMenú* e = BuscarEntrada(árbol, c);
    FinDeComando fin = FinDeComando::Normal;
    try {
      if (c == kComandoBúsqueda) {  // the search runs with its options, not through its screen
        const std::string error = CorrerBúsqueda(p, ui, o.búsqueda, búsqueda);
        if (!error.empty()) return UsoIncorrecto(error + ".");
      } else {
        fin = EjecutarComando(e ? e->acción : ComandosSinMenú().at(c), p, ui);
      }
    } catch (const std::exception& ex) {
      ui.Emitir();
      std::cerr << "lomaterra-lote: el comando " << c << " terminó por una falla no prevista: " << ex.what() << "\n";
      fin = FinDeComando::Fallo;
    }
    ui.Emitir();
    if (fin == FinDeComando::Fallo) {
      fallo = true;
      qué = "el comando " + c + " terminó en falla; los comandos siguientes no se ejecutaron";
      std::cerr << "lomaterra-lote: " << c << " terminó en falla; los comandos siguientes no se ejecutaron.\n";
      break;
    }
    if (p.Ventana.SalirDelPrograma) break;
  }

  int estado = fallo ? kFallo : kBien;
  if (o.guardar) {
    if (fallo) {
      std::cerr << "lomaterra-lote: no se guardó \"" << *o.guardar << "\" porque un comando terminó en falla.\n";
    } else {
      bool guardado = false;
      try {
        guardado = GuardarProyecto(p, *o.guardar, ui);
      } catch (const std::exception& ex) {
        std::cerr << "lomaterra-lote: falla no prevista al guardar: " << ex.what() << "\n";
      }
      ui.Emitir();
      if (!guardado) {
        std::cerr << "lomaterra-lote: no se guardó el proyecto en \"" << *o.guardar << "\".\n";
        estado = kFallo;
        qué = "no se guardó el proyecto en \"" + *o.guardar + "\"";
      }
    }
  }

  if (o.pdf || !o.figuras.empty()) {
    if (fallo)
      std::cerr << "lomaterra-lote: no se escribieron el informe ni las figuras porque un comando "
                   "terminó en falla.\n";
    else if (!EscribirSalidas(o, p)) {
      estado = kFallo;
      if (qué.empty()) qué = "no se escribieron todas las salidas pedidas";
    }
  }

  const Resumen resumen = ResumirProyecto(p);
  std::cout << ResumenComoTexto(resumen, qué) << SísmicoComoTexto(p);
  std::cout.flush();

  for (const auto& [ruta, rigidez] : {std::pair{o.mallaJson, false}, std::pair{o.rigidezJson, true}})
    if (ruta) {
      std::string motivo;
      if (!EscribirArchivoCompleto(*ruta, MallaComoJson(p, ui, rigidez), &motivo)) {
        std::cerr << "lomaterra-lote: no se pudo escribir \"" << *ruta << "\" (" << motivo << ").\n";
        estado = kFallo;
      }
    }
  if (o.json) {
    InformeLote informe{o.proyecto, o.comandos, ui.Líneas(), fallo, resumen, búsqueda, "", "", ""};
    informe.elementos = ElementosComoJson(p);
    informe.sísmico = SísmicoComoJson(p, historias);
    informe.modos = ModosComoJson(p);
    std::string motivo;
    if (!EscribirArchivoCompleto(*o.json, InformeComoJson(informe), &motivo)) {
      std::cerr << "lomaterra-lote: no se pudo escribir \"" << *o.json << "\" (" << motivo << ").\n";
      estado = kFallo;
    }
  }
  return estado;
}

}  // namespace
}  // namespace lomaterra::lote

int main(int argc, char** argv) {
  std::vector<std::string> argumentos(argv + 1, argv + argc);
  try {
    return lomaterra::lote::Correr(argumentos);
  } catch (const std::exception& e) {
    std::cerr << "lomaterra-lote: falla no prevista: " << e.what() << "\n";
    return 1;
  }
}
