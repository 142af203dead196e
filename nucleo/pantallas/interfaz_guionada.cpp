#include "pantallas/interfaz_guionada.h"

#include <cctype>

#include "salida/figura.h"
#include "salida/informe.h"

namespace lomaterra {

InterfazGuionada::InterfazGuionada(const std::string& respuestas, bool porDefecto)
    : porDefecto_(porDefecto) {
  Responder(respuestas);
}

void InterfazGuionada::Responder(const std::string& respuestas) {
  for (char c : respuestas) {
    const char m = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (m == 'S' || m == 'Y') respuestas_.push_back(true);
    if (m == 'N') respuestas_.push_back(false);
  }
}

void InterfazGuionada::ArchivosElegidos(std::vector<std::string> rutas) {
  archivos_.assign(rutas.begin(), rutas.end());
}

bool InterfazGuionada::HacerProgreso(double, const std::string&) {
  ++progresos_;
  return cancelarTras_ < 0 || progresos_ <= cancelarTras_;
}

void InterfazGuionada::HacerMensaje(const std::string& texto, const std::string& título) {
  apuntes_.push_back({"mensaje", título, texto, ""});
}

void InterfazGuionada::HacerMensajeDetallado(const std::string& texto, const std::string& título,
                                             const std::string& detalle) {
  apuntes_.push_back({"mensaje", título, texto, ""});
  últimoDetalle_ = detalle;
}

bool InterfazGuionada::HacerPregunta(const std::string& texto, const std::string& título) {
  bool r = porDefecto_;
  if (!respuestas_.empty()) {
    r = respuestas_.front();
    respuestas_.pop_front();
  }
  apuntes_.push_back({"pregunta", título, texto, r ? "S" : "N"});
  return r;
}

void InterfazGuionada::HacerEstado(const std::string& texto) {
  últimoEstado_ = texto;
  apuntes_.push_back({"estado", "", texto, ""});
}

void InterfazGuionada::HacerAbrir(Pantalla& pantalla) {
  apuntes_.push_back({"pantalla", pantalla.título, pantalla.nombre, ""});
  pantalla.cerrada = false;
  ++profundidad_;
  pantalla.Activar(*this);
  if (!pantalla.cerrada) {
    auto g = guiones_.find(pantalla.nombre);
    if (g != guiones_.end()) g->second(pantalla, *this);
  }
  // A screen still open when its script ends is closed with its exit button and no change; a
  // screen that refuses to close is closed all the same, so a batch run can never hang here.
  for (int intento = 0; !pantalla.cerrada && intento < 3; ++intento) pantalla.CerrarSinCambios(*this);
  pantalla.cerrada = true;
  --profundidad_;
}

std::optional<std::string> InterfazGuionada::HacerElegirArchivoAbrir(const std::string&, int) {
  std::optional<std::string> r;
  if (!archivos_.empty()) {
    r = archivos_.front();
    archivos_.pop_front();
  }
  apuntes_.push_back({"archivo", "Abrir", "", r.value_or("")});
  return r;
}

std::optional<std::string> InterfazGuionada::HacerElegirArchivoGuardar(const std::string&, int) {
  std::optional<std::string> r;
  if (!archivos_.empty()) {
    r = archivos_.front();
    archivos_.pop_front();
  }
  apuntes_.push_back({"archivo", "Guardar como", "", r.value_or("")});
  return r;
}

void InterfazGuionada::HacerAyuda(const std::string& archivo) {
  apuntes_.push_back({"ayuda", "", archivo, ""});
}

void InterfazGuionada::HacerMostrarFigura(const Figura& figura) {
  apuntes_.push_back({"figura", figura.título, figura.nombre, ""});
}

void InterfazGuionada::HacerCopiarAlPortapapeles(const std::string& texto) {
  apuntes_.push_back({"portapapeles", "", texto, ""});
}

void InterfazGuionada::HacerImprimir(const Informe& informe) {
  apuntes_.push_back({"imprimir", informe.título, "", ""});
}

std::vector<std::string> InterfazGuionada::Textos() const {
  std::vector<std::string> r;
  for (const auto& a : apuntes_)
    if (a.tipo == "mensaje" || a.tipo == "pregunta") r.push_back(a.texto);
  return r;
}

std::string InterfazGuionada::Línea(const Apunte& a) {
  auto plano = [](const std::string& s) {
    std::string r;
    for (char c : s) {
      if (c == '\n') r += "\\n";
      else if (c != '\r') r += c;
    }
    return r;
  };
  if (a.tipo == "pregunta") return "[pregunta] " + plano(a.título) + " | " + plano(a.texto) + " -> " + a.respuesta;
  if (a.tipo == "pantalla") return "[pantalla] " + plano(a.título);
  if (a.tipo == "estado") return "[estado] " + plano(a.texto);
  if (a.tipo == "archivo") return "[archivo] " + plano(a.título) + " | " + plano(a.respuesta);
  if (a.tipo == "ayuda") return "[ayuda] " + plano(a.texto);
  if (a.tipo == "figura") return "[figura] " + plano(a.título) + " | " + plano(a.texto);
  if (a.tipo == "portapapeles") return "[portapapeles] " + std::to_string(a.texto.size()) + " caracteres";
  if (a.tipo == "imprimir") return "[imprimir] " + plano(a.título);
  return "[mensaje] " + plano(a.título) + " | " + plano(a.texto);
}

}  // namespace lomaterra
