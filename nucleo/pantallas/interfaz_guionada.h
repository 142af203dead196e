// The scripted user interface: answers questions from a list, drives or closes screens by a
// script and records a transcript. Used by the tests and by lomaterra-lote.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "proyecto/interfaz.h"

namespace lomaterra {

struct Apunte {
  // "mensaje", "pregunta", "pantalla", "estado", "archivo", "ayuda", "figura" (título and control
  // name of the figure), "portapapeles" (the text), "imprimir" (título of the report)
  std::string tipo;
  std::string título;
  std::string texto;
  std::string respuesta;  // "S"/"N" for a question, the path for a file dialog
  bool operator==(const Apunte&) const = default;
};

class InterfazGuionada : public Interfaz {
 public:
  using Guion = std::function<void(Pantalla&, Interfaz&)>;

  InterfazGuionada() = default;
  // Answers "SNSN...": one letter a question; then the default.
  explicit InterfazGuionada(const std::string& respuestas, bool porDefecto = false);

 protected:
  void HacerMensaje(const std::string& texto, const std::string& título) override;
  void HacerMensajeDetallado(const std::string& texto, const std::string& título,
                             const std::string& detalle) override;
  bool HacerPregunta(const std::string& texto, const std::string& título) override;
  void HacerEstado(const std::string& texto) override;
  void HacerAbrir(Pantalla& pantalla) override;
  std::optional<std::string> HacerElegirArchivoAbrir(const std::string& filtro, int índice) override;
  std::optional<std::string> HacerElegirArchivoGuardar(const std::string& filtro, int índice) override;
  void HacerAyuda(const std::string& archivo) override;
  void HacerMostrarFigura(const Figura& figura) override;
  void HacerCopiarAlPortapapeles(const std::string& texto) override;
  void HacerImprimir(const Informe& informe) override;
  bool HacerProgreso(double fracción, const std::string& texto) override;

 public:
  void Responder(const std::string& respuestas);  // appends answers
  void PorDefecto(bool sí) { porDefecto_ = sí; }
  // What a screen does when it opens: the script runs after Activar while the screen is open.
  // Without a script a screen left open is closed by CerrarSinCambios.
  void GuionPantalla(const std::string& nombre, Guion guion) { guiones_[nombre] = std::move(guion); }
  // The paths the file dialogs give, in order; none left means cancel.
  void ArchivosElegidos(std::vector<std::string> rutas);

  const std::vector<Apunte>& Transcripción() const { return apuntes_; }
  // Texts only, in order, for word-for-word comparisons.
  std::vector<std::string> Textos() const;
  void Olvidar() { apuntes_.clear(); }
  // Progress calls are counted, not written in the transcript; after `n` of them the run is
  // told that Cancelar was pressed (a negative n never cancels).
  void CancelarProgresoTras(int n) { cancelarTras_ = n; }
  int Progresos() const { return progresos_; }
  std::string ÚltimoEstado() const { return últimoEstado_; }
  // The unfolded explanation of the last message that had one (the reason and line of a file
  // that could not be read); the transcript keeps the box's own text.
  const std::string& ÚltimoDetalle() const { return últimoDetalle_; }

  // One line of the batch transcript: "[mensaje] TÍTULO | TEXTO", "[pregunta] ... -> S".
  static std::string Línea(const Apunte& a);

 private:
  std::deque<bool> respuestas_;
  bool porDefecto_ = false;
  std::map<std::string, Guion> guiones_;
  std::deque<std::string> archivos_;
  std::vector<Apunte> apuntes_;
  std::string últimoEstado_;
  std::string últimoDetalle_;
  int profundidad_ = 0;
  int progresos_ = 0;
  int cancelarTras_ = -1;
};

}  // namespace lomaterra
