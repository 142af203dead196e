// The sequential item reader and writer of the project file and the side files: strings in double
// quotes, items separated by commas or line ends, lines ended by CR LF, numbers with a point.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace lomaterra {

// A read that could not go on: a missing file, a malformed item, a file that ends early.
class ErrorLectura : public std::runtime_error {
 public:
  explicit ErrorLectura(const std::string& detalle) : std::runtime_error(detalle) {}
};

// Text of a file as UTF-8: the bytes as they are when they are valid UTF-8, else read as
// Windows-1252.
std::string DecodificarTexto(const std::string& bytes);
// UTF-8 to Windows-1252; a character that has no place there becomes '?'.
std::string CodificarWindows1252(const std::string& utf8);

class LectorSecuencial {
 public:
  // Reads the whole file; ErrorLectura when it cannot be opened.
  static LectorSecuencial DeArchivo(const std::string& ruta);
  explicit LectorSecuencial(std::string textoUtf8);

  std::string LeerTexto();
  double LeerReal();
  std::int16_t LeerEntero();
  // A flag: 1 true, 2 false; any other integer leaves `valor` as it was.
  void LeerBandera(bool& valor);
  // A letter: "S" true, "N" false; any other text leaves `valor` as it was. Returns the letter.
  std::string LeerLetra(bool& valor);
  bool AlFinal();

 private:
  std::string Ítem(bool& entreComillas);
  std::string t_;
  std::size_t i_ = 0;
};

class EscritorSecuencial {
 public:
  // Starts a line; items are added with the operators and the line ends with Fin().
  EscritorSecuencial& Texto(const std::string& s);
  EscritorSecuencial& Real(double x);
  EscritorSecuencial& Entero(long n);
  EscritorSecuencial& Bandera(bool b) { return Entero(b ? 1 : 2); }
  EscritorSecuencial& Letra(bool b) { return Texto(b ? "S" : "N"); }
  void Fin();
  // Everything written so far, in UTF-8.
  const std::string& Contenido() const { return texto_; }
  // Writes the content to a file in Windows-1252 through a temporary file that replaces the
  // old one only when the whole write succeeded. Returns false (and leaves the old file) otherwise.
  bool GuardarEn(const std::string& ruta, std::string* error = nullptr) const;

 private:
  void Separar();
  std::string texto_;
  bool primeroDeLínea_ = true;
};

// A double with up to 15 significant digits, point as decimal sign, exponent with "E".
std::string RealParaArchivo(double x);

}  // namespace lomaterra
