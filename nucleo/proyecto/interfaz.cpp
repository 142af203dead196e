#include "proyecto/interfaz.h"

#include <cfenv>

namespace lomaterra {

namespace {

// Saves the floating-point flags on entry and puts them back on exit, whatever happens between.
class FlagsGuardados {
 public:
  FlagsGuardados() { std::fegetexceptflag(&flags_, FE_ALL_EXCEPT); }
  ~FlagsGuardados() { std::fesetexceptflag(&flags_, FE_ALL_EXCEPT); }
  FlagsGuardados(const FlagsGuardados&) = delete;
  FlagsGuardados& operator=(const FlagsGuardados&) = delete;

 private:
  std::fexcept_t flags_{};
};

}  // namespace

std::string TítuloDeArchivo(const std::string& ruta) {
  const auto corte = ruta.find_last_of("/\\");
  return corte == std::string::npos ? ruta : ruta.substr(corte + 1);
}

void Interfaz::Mensaje(const std::string& texto, const std::string& título) {
  FlagsGuardados g;
  HacerMensaje(texto, título);
}

void Interfaz::MensajeDetallado(const std::string& texto, const std::string& título,
                                const std::string& detalle) {
  FlagsGuardados g;
  HacerMensajeDetallado(texto, título, detalle);
}

bool Interfaz::Pregunta(const std::string& texto, const std::string& título) {
  FlagsGuardados g;
  return HacerPregunta(texto, título);
}

void Interfaz::Estado(const std::string& texto) {
  FlagsGuardados g;
  HacerEstado(texto);
}

void Interfaz::Abrir(Pantalla& pantalla) {
  FlagsGuardados g;
  HacerAbrir(pantalla);
}

std::optional<std::string> Interfaz::ElegirArchivoAbrir(const std::string& filtro, int índice) {
  FlagsGuardados g;
  return HacerElegirArchivoAbrir(filtro, índice);
}

std::optional<std::string> Interfaz::ElegirArchivoGuardar(const std::string& filtro, int índice) {
  FlagsGuardados g;
  return HacerElegirArchivoGuardar(filtro, índice);
}

void Interfaz::Ayuda(const std::string& archivo) {
  FlagsGuardados g;
  HacerAyuda(archivo);
}

void Interfaz::AcercaDe(const std::string& título, const std::string& texto) {
  FlagsGuardados g;
  HacerAcercaDe(título, texto);
}

void Interfaz::MostrarFigura(const Figura& figura) {
  FlagsGuardados g;
  HacerMostrarFigura(figura);
}

void Interfaz::CopiarAlPortapapeles(const std::string& texto) {
  FlagsGuardados g;
  HacerCopiarAlPortapapeles(texto);
}

void Interfaz::Imprimir(const Informe& informe) {
  FlagsGuardados g;
  HacerImprimir(informe);
}

bool Interfaz::Progreso(double fracción, const std::string& texto) {
  FlagsGuardados g;
  return HacerProgreso(fracción, texto);
}

}  // namespace lomaterra
