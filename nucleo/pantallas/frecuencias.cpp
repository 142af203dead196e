#include "pantallas/frecuencias.h"

#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/formas_modales.h"
#include "sismico/frecuencias.h"

namespace lomaterra {

namespace {

constexpr const char* kModos = "ResultadosDeLasFrecuenciasNaturales";
constexpr const char* kVector = "VectoresDeLaMatrizDeFormaModales";
constexpr const char* kSufijo = "  (rad/seg)  para cada MODO DE VIBRACIÖN";

// The initial list from the properties of the numbered degrees; false after a message.
bool CalcularIniciales(Proyecto& p, Interfaz& ui) {
  auto& s = p.Sísmico;
  const long n = s.NúmeroGradosLibertad;
  std::vector<PropiedadesGrado> grados;
  for (long i = 1; i <= n; ++i)
    grados.push_back({s.MóduloGrado.Leer(i), s.PoissonGrado.Leer(i), s.PesoGrado.Leer(i),
                      s.VelocidadGrado.Leer(i), s.GmaxGrado.Leer(i)});
  int método = s.MétodoGmax;
  if (método < 1 || método > 3) método = p.TipoDeMaterial == "R" ? p.Roca.MétodoModuloCortante : 3;
  if (método < 1 || método > 3) método = 3;
  std::vector<double> w;
  if (const std::string error = FrecuenciasInicialesEstimadas(grados, método, s.AlturaPresa, w);
      !error.empty()) {
    ui.Mensaje(error, "Resultados del cálculo de frecuencias");
    return false;
  }
  s.Frecuencia.Redimensionar(n);
  for (long i = 1; i <= n; ++i) s.Frecuencia[i] = w[static_cast<std::size_t>(i - 1)];
  s.NúmeroFrecuencias = static_cast<DatosSísmicos::Entero>(n);
  s.FrecuenciasIniciales = true;
  s.FrecuenciasDadas = true;
  p.DatosGuardados = false;
  return true;
}

}  // namespace

ResultadosDeLasFrecuenciasNaturales::ResultadosDeLasFrecuenciasNaturales(Proyecto& p) : p_(p) {
  nombre = "ResultadosDeLasFrecuenciasNaturales";
  título = "Resultados del cálculo de frecuencias";
  campos = {{"TextoTotalGradosDeLibertad", "Total de los grados de libertad:", "", "", true},
            {"TextoModoDeVibración", "Modo de vibración:", "",
             "Haga clic en un modo de la lista de la izquierda para elegirlo"},
            {"TextoFrecuenciasDefinitiva", "Frecuencia (rad/seg):", "", ""}};
  ListaPantalla modos;
  modos.nombre = kModos;
  modos.columnas = {"Modo de vibración", "Frecuencia (rad/seg)", "Período (seg)"};
  modos.alSeleccionar = [this](Interfaz& ui) { ElegirModo(ui); };
  ListaPantalla vector;
  vector.nombre = kVector;
  vector.columnas = {"Grado de libertad", "Vector modal"};
  listas = {modos, vector};
  botones.push_back({"Modificar", "Modificar  Agregar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónCopiar", "Copiar la lista", [this](Interfaz& ui) { Copiar(ui); }});
  botones.push_back({"BotónFormaModal", "Ver la forma modal", [this](Interfaz& ui) { VerFormaModal(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar y Salir", [this](Interfaz& ui) { Aceptar(ui); }});
}

void ResultadosDeLasFrecuenciasNaturales::MostrarModos(bool estimadas) {
  nota = std::string(estimadas ? "FRECUENCIAS ESTIMADAS" : "FRECUENCIAS INICIALES") + kSufijo;
  auto& l = lista(kModos);
  l.filas.clear();
  for (std::size_t i = 0; i < frecuencias_.size(); ++i) {
    const double w = frecuencias_[i];
    l.filas.push_back({Formato(static_cast<double>(i + 1), "#0"), Formato(w, "#0.00"),
                       w > 0 ? Formato(8.0 * std::atan(1.0) / w, "#0.0000") : ""});
  }
  texto("TextoTotalGradosDeLibertad") = std::to_string(p_.Sísmico.NúmeroGradosLibertad);
}

void ResultadosDeLasFrecuenciasNaturales::MostrarVector(long modo) {
  const auto& s = p_.Sísmico;
  auto& l = lista(kVector);
  l.filas.clear();
  if (modo < 1 || modo > s.MatrizFormasModales.Columnas()) return;
  for (long i = 1; i <= s.MatrizFormasModales.Filas(); ++i)
    l.filas.push_back({std::to_string(i), Formato(s.MatrizFormasModales(i, modo), "#0.000000000")});
}

void ResultadosDeLasFrecuenciasNaturales::Activar(Interfaz& ui) {
  auto& s = p_.Sísmico;
  for (auto& c : campos) c.valor.clear();
  lista(kModos).seleccionada = 0;
  lista(kVector).filas.clear();
  bool calcular = !s.FrecuenciasDefinitivas;
  if (s.FrecuenciasDefinitivas && s.FormasModalesDadas && s.ModosCalculados == 0 &&
      ui.Pregunta("Ha este problema ya se le determinó las frecuencias naturales correspondientes a "
                  "la solución del problema ¿Desea calcular valores iniciales para reiniciar una "
                  "estimación de nuevo de los vectores de formas modales?")) {
    s.FormasModalesDadas = false;
    s.FrecuenciasDefinitivas = false;
    s.ModoDeCálculo = 0;
    s.ModoElegido = 0;
    calcular = true;
  }
  // Until the modes are found the initial list is made anew at every opening, from the data as
  // they stand.
  if (calcular && !CalcularIniciales(p_, ui)) {
    cerrada = true;
    return;
  }
  frecuencias_.clear();
  for (long i = 1; i <= s.NúmeroFrecuencias; ++i) frecuencias_.push_back(s.Frecuencia.Leer(i));
  MostrarModos(s.FrecuenciasDefinitivas);
  if (s.FrecuenciasDefinitivas && s.ModoDeCálculo >= 1) {
    const long modo = static_cast<long>(s.ModoDeCálculo);
    texto("TextoModoDeVibración") = Formato(s.ModoDeCálculo, "#0");
    texto("TextoFrecuenciasDefinitiva") = Formato(s.Frecuencia.Leer(modo), "#0.00");
    MostrarVector(modo);
  }
}

void ResultadosDeLasFrecuenciasNaturales::ElegirModo(Interfaz& ui) {
  const int i = lista(kModos).seleccionada;
  if (i < 1 || i > static_cast<int>(frecuencias_.size())) return;
  if (!p_.Sísmico.FormasModalesDadas) {
    ui.Mensaje("Los Vectores de Forma MOdales, no se han estimado. Por favor vaya a la opción: "
               "Determinación de los Vectores de Forma MOdales");
    return;
  }
  texto("TextoModoDeVibración") = Formato(i, "#0");
  texto("TextoFrecuenciasDefinitiva") = Formato(frecuencias_[static_cast<std::size_t>(i - 1)], "#0.00");
  MostrarVector(i);
}

void ResultadosDeLasFrecuenciasNaturales::Modificar(Interfaz& ui) {
  const int i = lista(kModos).seleccionada;
  if (i < 1 || i > static_cast<int>(frecuencias_.size())) {
    ui.Mensaje("Seleccione primero en la lista de la izquierda el modo cuya frecuencia va a modificar.");
    return;
  }
  if (!EsNúmero(texto("TextoFrecuenciasDefinitiva"))) {
    ui.Mensaje("Debe introducir un número ");
    return;
  }
  frecuencias_[static_cast<std::size_t>(i - 1)] = ANúmero(texto("TextoFrecuenciasDefinitiva"));
  MostrarModos(p_.Sísmico.FrecuenciasDefinitivas);
}

void ResultadosDeLasFrecuenciasNaturales::Copiar(Interfaz& ui) {
  std::string t = "Modo\tFrecuencia (rad/seg)\tPeríodo (seg)\r\n";
  for (const auto& f : lista(kModos).filas) t += f[0] + "\t" + f[1] + "\t" + f[2] + "\r\n";
  ui.CopiarAlPortapapeles(t);
}

void ResultadosDeLasFrecuenciasNaturales::VerFormaModal(Interfaz& ui) {
  long modo = lista(kModos).seleccionada;
  if (EsNúmero(texto("TextoModoDeVibración"))) modo = static_cast<long>(std::floor(ANúmero(texto("TextoModoDeVibración"))));
  if (modo < 1 && p_.Sísmico.FormasModalesDadas) {
    ui.Mensaje("Haga clic en un modo de la lista de la izquierda para ver su forma modal.");
    return;
  }
  if (const std::string defecto = DefectoDeLaFormaModal(p_, modo); !defecto.empty()) {
    ui.Mensaje(defecto);
    return;
  }
  ui.MostrarFigura(FiguraFormaModal(p_, modo));
}

void ResultadosDeLasFrecuenciasNaturales::Aceptar(Interfaz& ui) {
  auto& s = p_.Sísmico;
  const bool vectores = s.FormasModalesDadas;
  const double caja = EsNúmero(texto("TextoModoDeVibración")) ? ANúmero(texto("TextoModoDeVibración")) : 0;
  if (vectores && s.SismoCalculado && s.ModoDeCálculo >= 1 && caja != s.ModoDeCálculo &&
      !ui.Pregunta("El modo de vibración que está seleccionando, es distinto del valor del  modo de "
                   "vibración que ya fue usado para hacer los cálculos de desplazamientos y "
                   "esfuerzos. ¿Desea trabajar con otro Modo de Vibración?")) {
    ui.Mensaje("Por favor mantega el valor del modo de vibración");
    return;
  }
  s.ModoDeCálculo = caja;
  if (s.ModoDeCálculo < 1 && vectores) {
    ui.Mensaje("Seleccione el MODO DE VIBRACIÓN en el recuadro de la izquierda (MODOS Y "
               "FRECUENCIAS), haciendo clic en la primera columna, para hacer las estimaciones de "
               "desplazamientos y esfuerzos");
    return;
  }
  const long n = s.NúmeroFrecuencias;
  auto f = [&](long i) { return s.Frecuencia.Leer(i); };
  if (s.ModosCalculados == 0 && vectores) {
    if (n > 100)
      s.ModosCalculados = static_cast<DatosSísmicos::Entero>(
          f(100) != f(101) ? n : (f(2) == f(3) ? 2 : 100));
    else
      s.ModosCalculados = static_cast<DatosSísmicos::Entero>(n >= 3 && f(2) == f(3) ? 2 : n);
  }
  const double elegido = s.ModoDeCálculo;
  const long calculados = s.ModosCalculados;
  const char* aviso = nullptr;
  if (vectores && calculados == n && elegido >= n)
    aviso = "Ud ha indicado  como  Modo de Cálculo,  el correspondiente al último Modo de vibración. "
            "El programa asignará el penúltimo modo de vibración para poder hallar la relación de "
            "amortiguamiento.";
  else if (vectores && calculados == 100 && elegido == 100)
    aviso = "Los vectores de Formas Modales, se han calculado con 100 modos de vibración.  Ud ha "
            "indicado  como  Modo de Cálculo el correspondiente al número 100.  El programa asignará "
            "como Modo de cálculo el número 99, para poder hallar la relación de amortiguamiento.";
  else if (vectores && calculados == 100 && elegido > 100)
    aviso = "Los vectores de Formas Modales, se han calculado con 100 modos de vibración.  Ud ha "
            "indicado un  Modo de Cálculo mayor al número 100.  El programa asignará como Modo de "
            "cálculo el número 99, para poder hallar la relación de amortiguamiento.";
  else if (vectores && calculados == 2 && elegido == 2)
    aviso = "Los vectores de Formas Modales, se han calculado con 2 modos de vibración.  Ud ha "
            "indicado  como  Modo de Cálculo el correspondiente al número 2.  El programa asignará "
            "como Modo de cálculo el número 1, para poder hallar la relación de amortiguamiento.";
  else if (vectores && calculados == 2 && elegido > 2)
    aviso = "Los vectores de Formas Modales, se han calculado con 2 modos de vibración.  Ud ha "
            "indicado un Modo de Cálculo mayor al número 2.  El programa asignará como Modo de "
            "cálculo el número 1, para poder hallar la relación de amortiguamiento.";
  if (aviso) {
    ui.Mensaje(aviso);
    s.ModoDeCálculo = calculados - 1;
  }
  s.ModoElegido = static_cast<DatosSísmicos::Entero>(std::max(0.0, std::floor(s.ModoDeCálculo)));
  p_.DatosGuardados = false;
  cerrada = true;
}

void DeterminaciónDeLasFrecuencias(Proyecto& p, Interfaz& ui) {
  if (!p.Sísmico.GradosDeLibertadEstimados) {
    ui.Mensaje("Vaya al menú 'Elementos finitos' a la sesión 'Estimación de los grados de libertad' "
               "y de click para estimar grados de libertad y matrices.");
    return;
  }
  if (p.TipoDeMaterial == "S" && !p.Sísmico.ParámetrosSísmicosDados) {
    ui.Mensaje("Vaya a la opción 'Elementos finitos' a la sesión 'Parámetros de los elementos de "
               "suelos para el cálculo sísmico' y dé la información requerida.");
    return;
  }
  ResultadosDeLasFrecuenciasNaturales f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
