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
// The characters of a text that a project file cannot keep as they are: those Windows-1252 has no
// place for, and the double quote that closes a text. Each once, in order; empty when none.
std::string CaracteresQueNoSeGuardan(const std::string& utf8);

// No table of a real project comes near this many cells: a count past it means a damaged file.
inline constexpr long kCeldasMáximas = 4000000;

// No project or side file comes near this size; a larger one is not read at all.
inline constexpr unsigned long long kTamañoMáximoArchivo = 64ull * 1024 * 1024;

// Writes `bytes` to `ruta` so that a failure never leaves a partial file: a new file in the same
// folder, flushed to disk, then renamed over the old one. An existing file keeps its permissions,
// a symbolic link keeps pointing at its target, which is the file written. Returns false (and
// leaves the old file as it was) with the reason in `error`.
bool EscribirArchivoCompleto(const std::string& ruta, const std::string& bytes, std::string* error = nullptr);

class LectorSecuencial {
 public:
  // Reads the whole file; ErrorLectura when it cannot be opened (naming a folder or a device as
  // such) or is larger than any project.
  static LectorSecuencial DeArchivo(const std::string& ruta);
  explicit LectorSecuencial(std::string textoUtf8);

  // A text between double quotes (an empty item reads as ""); anything else is ErrorLectura.
  std::string LeerTexto();
  double LeerReal();
  std::int16_t LeerEntero();
  // A flag: 1 true, 2 false; any other integer leaves `valor` as it was.
  void LeerBandera(bool& valor);
  // A letter: "S" true, "N" false; any other text leaves `valor` as it was. Returns the letter.
  std::string LeerLetra(bool& valor);
  // True when only blanks and line ends are left; Línea() then says where the rest begins.
  bool AlFinal();
  // Line (from 1) of the item read last: where a failure of the read stands.
  long Línea() const { return líneaÍtem_; }
  // A count of `registros` records of `ítemsPorRegistro` items each, checked against what is left
  // in the file before any table is dimensioned by it: ErrorLectura when the file cannot hold them.
  void ComprobarCuenta(long registros, long ítemsPorRegistro) const;
  // The most records of `ítemsPorRegistro` items each that the rest of the file could hold.
  long Caben(long ítemsPorRegistro) const;

 private:
  std::string Ítem(bool& entreComillas);
  std::string t_;
  std::size_t i_ = 0;
  long línea_ = 1;
  long líneaÍtem_ = 1;
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
