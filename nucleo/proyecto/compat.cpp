#include "proyecto/compat.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "proyecto/fallos.h"

namespace lomaterra {

namespace {

// Decimal digits of |v| rounded half away from zero to `decimales` places, from the number's own
// 15-significant-digit decimal value (so 2.675 rounds to 2.68, as the user reads it).
std::string DígitosRedondeados(double v, int decimales) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(v), std::chars_format::scientific, 14);
  std::string s(buf, r.ptr);
  const auto e = s.find('e');
  int exponente = std::atoi(s.c_str() + e + 1);
  std::string mantisa;
  for (std::size_t i = 0; i < e; ++i)
    if (s[i] != '.') mantisa += s[i];
  // mantisa holds 15 digits d0 d1 ... with value d0.d1d2... x 10^exponente
  // Build the integer string of value * 10^decimales, with one extra digit for rounding.
  const int puntoEn = exponente + 1 + decimales;  // digits before the cut
  std::string entero;
  int siguiente = 0;
  if (puntoEn <= 0) {
    entero = "0";
    siguiente = (puntoEn == 0) ? mantisa[0] - '0' : 0;
  } else {
    for (int i = 0; i < puntoEn; ++i) entero += i < static_cast<int>(mantisa.size()) ? mantisa[i] : '0';
    siguiente = puntoEn < static_cast<int>(mantisa.size()) ? mantisa[puntoEn] - '0' : 0;
  }
  if (siguiente >= 5) {
    int i = static_cast<int>(entero.size()) - 1;
    while (i >= 0 && entero[i] == '9') entero[i--] = '0';
    if (i < 0) entero.insert(entero.begin(), '1');
    else ++entero[i];
  }
  // Remove leading zeros but keep at least decimales + 1 digits.
  while (static_cast<int>(entero.size()) < decimales + 1) entero.insert(entero.begin(), '0');
  std::size_t quitar = 0;
  while (quitar + 1 < entero.size() - static_cast<std::size_t>(decimales) && entero[quitar] == '0') ++quitar;
  entero.erase(0, quitar);
  return entero;
}

}  // namespace

std::string Formato(double valor, const std::string& patrón) {
  if (!std::isfinite(valor)) return "";
  // The numeric part of the pattern is the run of '#', '0', '.' at its start.
  std::size_t fin = 0;
  while (fin < patrón.size() && (patrón[fin] == '#' || patrón[fin] == '0' || patrón[fin] == '.' || patrón[fin] == ','))
    ++fin;
  const std::string numérico = patrón.substr(0, fin);
  const std::string resto = patrón.substr(fin);
  const auto punto = numérico.find('.');
  int decimales = 0;
  if (punto != std::string::npos)
    for (std::size_t i = punto + 1; i < numérico.size(); ++i)
      if (numérico[i] == '0' || numérico[i] == '#') ++decimales;
  const bool ceroObligatorio = numérico.substr(0, punto).find('0') != std::string::npos;
  std::string dígitos = DígitosRedondeados(valor, decimales);
  std::string parteEntera = dígitos.substr(0, dígitos.size() - static_cast<std::size_t>(decimales));
  std::string parteDecimal = dígitos.substr(dígitos.size() - static_cast<std::size_t>(decimales));
  bool esCero = true;
  for (char c : dígitos)
    if (c != '0') esCero = false;
  if (parteEntera == "0" && !ceroObligatorio) parteEntera.clear();
  std::string r = parteEntera;
  if (decimales > 0) r += "." + parteDecimal;
  if (r.empty()) r = "";  // "#" of zero shows nothing, as the original does
  if (valor < 0 && !esCero) r = "-" + r;
  return r + resto;
}

double RedondeoPar(double x) { return std::nearbyint(x); }  // default rounding: halves to even

std::int16_t EnteroCorto(double x) {
  const double r = RedondeoPar(x);
  if (!std::isfinite(r) || r < std::numeric_limits<std::int16_t>::min() ||
      r > std::numeric_limits<std::int16_t>::max())
    throw FalloAritmético("desbordamiento de un número entero");
  return static_cast<std::int16_t>(r);
}

std::string Recortar(const std::string& t) {
  std::size_t a = 0, b = t.size();
  while (a < b && (t[a] == ' ' || t[a] == '\t' || t[a] == '\r' || t[a] == '\n')) ++a;
  while (b > a && (t[b - 1] == ' ' || t[b - 1] == '\t' || t[b - 1] == '\r' || t[b - 1] == '\n')) --b;
  return t.substr(a, b - a);
}

namespace {
// Parses a whole number text: sign, digits, point, exponent (E or D). Returns false otherwise.
bool Leer(const std::string& texto, double& valor) {
  std::string s = Recortar(texto);
  if (s.empty()) return false;
  std::size_t i = 0;
  std::string limpio;
  if (s[i] == '+' || s[i] == '-') limpio += s[i++];
  std::size_t dígitos = 0;
  while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) { limpio += s[i++]; ++dígitos; }
  if (i < s.size() && s[i] == '.') {
    limpio += s[i++];
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) { limpio += s[i++]; ++dígitos; }
  }
  if (dígitos == 0) return false;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    limpio += 'e';
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) limpio += s[i++];
    std::size_t exp = 0;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) { limpio += s[i++]; ++exp; }
    if (exp == 0) return false;
  }
  if (i != s.size()) return false;
  // from_chars takes neither a leading '+' nor a bare leading point: mend both.
  std::string t = limpio;
  bool negativo = false;
  if (!t.empty() && (t[0] == '+' || t[0] == '-')) { negativo = t[0] == '-'; t.erase(0, 1); }
  if (!t.empty() && t[0] == '.') t.insert(t.begin(), '0');
  double v = 0;
  auto r = std::from_chars(t.data(), t.data() + t.size(), v, std::chars_format::general);
  if (r.ec != std::errc() || r.ptr != t.data() + t.size()) return false;
  if (!std::isfinite(v)) return false;
  valor = negativo ? -v : v;
  return true;
}
}  // namespace

bool EsNúmero(const std::string& texto) {
  double v;
  return Leer(texto, v);
}

double ANúmero(const std::string& texto) {
  double v = 0;
  return Leer(texto, v) ? v : 0.0;
}

std::string NúmeroATexto(double x) {
  if (x == 0) return "0";
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, x);
  std::string s(buf, r.ptr);
  for (auto& c : s)
    if (c == 'e') c = 'E';
  return s;
}

std::string Mayúsculas(const std::string& texto) {
  std::string r;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(texto[i]);
    if (c < 0x80) {
      r += static_cast<char>(std::toupper(c));
    } else if (c == 0xC3 && i + 1 < texto.size()) {
      unsigned char d = static_cast<unsigned char>(texto[i + 1]);
      // á é í ó ú ñ ü and the rest of Latin-1 lower case: 0xA0..0xBE -> 0x80..0x9E (not ÷)
      if (d >= 0xA0 && d <= 0xBE && d != 0xB7) d = static_cast<unsigned char>(d - 0x20);
      r += static_cast<char>(c);
      r += static_cast<char>(d);
      ++i;
    } else {
      r += static_cast<char>(c);
    }
  }
  return r;
}

}  // namespace lomaterra
