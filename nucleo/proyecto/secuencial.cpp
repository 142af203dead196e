#include "proyecto/secuencial.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "proyecto/compat.h"

namespace lomaterra {

namespace {

// Windows-1252 bytes 0x80..0x9F; 0 where the code page has no character.
const char32_t kAlto1252[32] = {
    0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

void AñadirUtf8(std::string& s, char32_t c) {
  if (c < 0x80) {
    s += static_cast<char>(c);
  } else if (c < 0x800) {
    s += static_cast<char>(0xC0 | (c >> 6));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    s += static_cast<char>(0xE0 | (c >> 12));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    s += static_cast<char>(0xF0 | (c >> 18));
    s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Decodes UTF-8; false when the bytes are not valid UTF-8.
bool DecodificarUtf8(const std::string& b, std::vector<char32_t>& r) {
  for (std::size_t i = 0; i < b.size();) {
    const unsigned char c = static_cast<unsigned char>(b[i]);
    int n = 0;
    char32_t v = 0;
    if (c < 0x80) { v = c; n = 0; }
    else if ((c & 0xE0) == 0xC0) { v = c & 0x1F; n = 1; if (c < 0xC2) return false; }
    else if ((c & 0xF0) == 0xE0) { v = c & 0x0F; n = 2; }
    else if ((c & 0xF8) == 0xF0) { v = c & 0x07; n = 3; if (c > 0xF4) return false; }
    else return false;
    if (n > 0 && i + static_cast<std::size_t>(n) >= b.size()) return false;
    for (int k = 1; k <= n; ++k) {
      const unsigned char d = static_cast<unsigned char>(b[i + static_cast<std::size_t>(k)]);
      if ((d & 0xC0) != 0x80) return false;
      v = (v << 6) | (d & 0x3F);
    }
    if ((n == 2 && v < 0x800) || (n == 3 && (v < 0x10000 || v > 0x10FFFF)) || (v >= 0xD800 && v <= 0xDFFF))
      return false;
    r.push_back(v);
    i += static_cast<std::size_t>(n) + 1;
  }
  return true;
}

}  // namespace

std::string DecodificarTexto(const std::string& bytes) {
  std::vector<char32_t> u;
  if (DecodificarUtf8(bytes, u)) {
    // Drop a byte-order mark.
    if (bytes.size() >= 3 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) return bytes.substr(3);
    return bytes;
  }
  std::string r;
  for (unsigned char c : bytes) {
    if (c < 0x80) r += static_cast<char>(c);
    else if (c < 0xA0) AñadirUtf8(r, kAlto1252[c - 0x80] ? kAlto1252[c - 0x80] : U'?');
    else AñadirUtf8(r, c);
  }
  return r;
}

std::string CodificarWindows1252(const std::string& utf8) {
  std::vector<char32_t> u;
  if (!DecodificarUtf8(utf8, u)) return utf8;
  std::string r;
  for (char32_t c : u) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
      r += static_cast<char>(c);
      continue;
    }
    char b = '?';
    for (int k = 0; k < 32; ++k)
      if (kAlto1252[k] == c && c != 0) b = static_cast<char>(0x80 + k);
    r += b;
  }
  return r;
}

LectorSecuencial LectorSecuencial::DeArchivo(const std::string& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  if (!f) throw ErrorLectura("no se pudo abrir " + ruta);
  std::ostringstream s;
  s << f.rdbuf();
  return LectorSecuencial(DecodificarTexto(s.str()));
}

LectorSecuencial::LectorSecuencial(std::string textoUtf8) : t_(std::move(textoUtf8)) {}

bool LectorSecuencial::AlFinal() {
  std::size_t j = i_;
  while (j < t_.size() && (t_[j] == ' ' || t_[j] == '\t' || t_[j] == '\r' || t_[j] == '\n')) ++j;
  return j >= t_.size();
}

// One item: blanks and line ends before it are skipped; a quoted string runs to its closing
// quote; anything else runs to the next comma or line end. The separator after it is consumed.
std::string LectorSecuencial::Ítem(bool& entreComillas) {
  entreComillas = false;
  while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t' || t_[i_] == '\r' || t_[i_] == '\n')) ++i_;
  if (i_ >= t_.size()) throw ErrorLectura("el archivo terminó antes de lo esperado");
  std::string r;
  if (t_[i_] == '"') {
    entreComillas = true;
    ++i_;
    const auto cierre = t_.find('"', i_);
    if (cierre == std::string::npos) throw ErrorLectura("texto sin comillas de cierre");
    r = t_.substr(i_, cierre - i_);
    i_ = cierre + 1;
    while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t')) ++i_;
  } else {
    while (i_ < t_.size() && t_[i_] != ',' && t_[i_] != '\r' && t_[i_] != '\n') r += t_[i_++];
    r = Recortar(r);
  }
  if (i_ < t_.size()) {
    if (t_[i_] == ',') ++i_;
    else if (t_[i_] == '\r') { ++i_; if (i_ < t_.size() && t_[i_] == '\n') ++i_; }
    else if (t_[i_] == '\n') ++i_;
  }
  return r;
}

std::string LectorSecuencial::LeerTexto() {
  bool comillas;
  return Ítem(comillas);
}

double LectorSecuencial::LeerReal() {
  bool comillas;
  const std::string s = Ítem(comillas);
  if (comillas || !EsNúmero(s)) throw ErrorLectura("se esperaba un número y se encontró \"" + s + "\"");
  return ANúmero(s);
}

std::int16_t LectorSecuencial::LeerEntero() {
  const double v = LeerReal();
  const double r = RedondeoPar(v);
  if (r < -32768 || r > 32767) throw ErrorLectura("número entero fuera de rango");
  return static_cast<std::int16_t>(r);
}

void LectorSecuencial::LeerBandera(bool& valor) {
  const auto n = LeerEntero();
  if (n == 1) valor = true;
  else if (n == 2) valor = false;
}

std::string LectorSecuencial::LeerLetra(bool& valor) {
  const std::string s = LeerTexto();
  if (s == "S") valor = true;
  else if (s == "N") valor = false;
  return s;
}

std::string RealParaArchivo(double x) {
  // A value that is not a number would make the file unreadable: it is written as 0.
  if (x == 0 || !std::isfinite(x)) return "0";
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 15);
  std::string s(buf, r.ptr);
  for (auto& c : s)
    if (c == 'e') c = 'E';
  return s;
}

void EscritorSecuencial::Separar() {
  if (!primeroDeLínea_) texto_ += ',';
  primeroDeLínea_ = false;
}

EscritorSecuencial& EscritorSecuencial::Texto(const std::string& s) {
  Separar();
  std::string limpio = s;
  for (auto& c : limpio)
    if (c == '"') c = '\'';
  texto_ += '"' + limpio + '"';
  return *this;
}

EscritorSecuencial& EscritorSecuencial::Real(double x) {
  Separar();
  texto_ += RealParaArchivo(x);
  return *this;
}

EscritorSecuencial& EscritorSecuencial::Entero(long n) {
  Separar();
  texto_ += std::to_string(n);
  return *this;
}

void EscritorSecuencial::Fin() {
  texto_ += "\r\n";
  primeroDeLínea_ = true;
}

bool EscritorSecuencial::GuardarEn(const std::string& ruta, std::string* error) const {
  namespace fs = std::filesystem;
  const std::string temporal = ruta + ".tmp~";
  {
    std::ofstream f(temporal, std::ios::binary | std::ios::trunc);
    if (!f) {
      if (error) *error = "no se pudo crear el archivo " + temporal;
      return false;
    }
    const std::string bytes = CodificarWindows1252(texto_);
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    f.flush();
    f.close();
    if (f.fail()) {
      if (error) *error = "no se pudo escribir el archivo completo";
      std::error_code ec;
      fs::remove(temporal, ec);
      return false;
    }
  }
  std::error_code ec;
  fs::rename(temporal, ruta, ec);
  if (ec) {
    if (error) *error = "no se pudo reemplazar el archivo: " + ec.message();
    fs::remove(temporal, ec);
    return false;
  }
  return true;
}

}  // namespace lomaterra
