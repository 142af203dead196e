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

  void Mensaje(const std::string& texto, const std::string& título = "") override;
  bool Pregunta(const std::string& texto, const std::string& título = "") override;
  void Estado(const std::string& texto) override;
  void Abrir(Pantalla& pantalla) override;
  std::optional<std::string> ElegirArchivoAbrir(const std::string& filtro, int índice) override;
  std::optional<std::string> ElegirArchivoGuardar(const std::string& filtro, int índice) override;
  void Ayuda(const std::string& archivo) override;
  void MostrarFigura(const Figura& figura) override;
  void CopiarAlPortapapeles(const std::string& texto) override;
  void Imprimir(const Informe& informe) override;

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
  std::string ÚltimoEstado() const { return últimoEstado_; }

  // One line of the batch transcript: "[mensaje] TÍTULO | TEXTO", "[pregunta] ... -> S".
  static std::string Línea(const Apunte& a);

 private:
  std::deque<bool> respuestas_;
  bool porDefecto_ = false;
  std::map<std::string, Guion> guiones_;
  std::deque<std::string> archivos_;
  std::vector<Apunte> apuntes_;
  std::string últimoEstado_;
  int profundidad_ = 0;
};

}  // namespace lomaterra
