#include "proyecto/secuencial.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "proyecto/compat.h"

#if defined(__unix__) || defined(__APPLE__)
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

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
  // Line by line: one stray Windows-1252 byte must not turn the UTF-8 of every other line into
  // something else.
  std::string r;
  r.reserve(bytes.size());
  std::size_t inicio = 0;
  if (bytes.size() >= 3 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) inicio = 3;  // byte-order mark
  std::vector<char32_t> u;
  while (inicio < bytes.size()) {
    std::size_t fin = bytes.find('\n', inicio);
    fin = fin == std::string::npos ? bytes.size() : fin + 1;
    const std::string línea = bytes.substr(inicio, fin - inicio);
    u.clear();
    if (DecodificarUtf8(línea, u)) {
      r += línea;
    } else {
      for (unsigned char c : línea) {
        if (c < 0x80) r += static_cast<char>(c);
        else if (c < 0xA0) AñadirUtf8(r, kAlto1252[c - 0x80] ? kAlto1252[c - 0x80] : U'?');
        else AñadirUtf8(r, c);
      }
    }
    inicio = fin;
  }
  return r;
}

namespace {

// The Windows-1252 byte of a character; 0 when the code page has none.
unsigned char Byte1252(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
  for (int k = 0; k < 32; ++k)
    if (kAlto1252[k] == c && c != 0) return static_cast<unsigned char>(0x80 + k);
  return 0;
}

}  // namespace

std::string CodificarWindows1252(const std::string& utf8) {
  std::vector<char32_t> u;
  if (!DecodificarUtf8(utf8, u)) return utf8;
  std::string r;
  for (char32_t c : u) {
    const unsigned char b = c == 0 ? 0 : Byte1252(c);
    r += (b != 0 || c == 0) ? static_cast<char>(b) : '?';
  }
  return r;
}

std::string CaracteresQueNoSeGuardan(const std::string& utf8) {
  std::vector<char32_t> u;
  if (!DecodificarUtf8(utf8, u)) return "?";
  std::string r;
  std::vector<char32_t> vistos;
  for (char32_t c : u) {
    const bool sinLugar = c == U'"' || (c != 0 && Byte1252(c) == 0);
    if (!sinLugar || std::find(vistos.begin(), vistos.end(), c) != vistos.end()) continue;
    vistos.push_back(c);
    AñadirUtf8(r, c);
  }
  return r;
}

LectorSecuencial LectorSecuencial::DeArchivo(const std::string& ruta) {
  namespace fs = std::filesystem;
  std::error_code ec;
  const fs::file_status estado = fs::status(ruta, ec);
  if (!fs::exists(estado)) throw ErrorLectura("no existe el archivo \"" + ruta + "\"");
  if (fs::is_directory(estado)) throw ErrorLectura("\"" + ruta + "\" es una carpeta, no un archivo");
  if (!fs::is_regular_file(estado))
    throw ErrorLectura("\"" + ruta + "\" no es un archivo común (es un dispositivo, una tubería o un enchufe)");
  const auto tamaño = fs::file_size(ruta, ec);
  if (ec) throw ErrorLectura("no se pudo abrir \"" + ruta + "\": " + ec.message());
  if (tamaño > kTamañoMáximoArchivo)
    throw ErrorLectura("el archivo \"" + ruta + "\" es demasiado grande para ser un archivo de coordenadas");
  std::ifstream f(ruta, std::ios::binary);
  if (!f) throw ErrorLectura("no se pudo abrir \"" + ruta + "\"");
  std::string bytes(static_cast<std::size_t>(tamaño), '\0');
  f.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (f.gcount() != static_cast<std::streamsize>(bytes.size()))
    throw ErrorLectura("no se pudo leer completo el archivo \"" + ruta + "\"");
  return LectorSecuencial(DecodificarTexto(bytes));
}

LectorSecuencial::LectorSecuencial(std::string textoUtf8) : t_(std::move(textoUtf8)) {}

bool LectorSecuencial::AlFinal() {
  while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t' || t_[i_] == '\r' || t_[i_] == '\n'))
    if (t_[i_++] == '\n') ++línea_;
  líneaÍtem_ = línea_;
  return i_ >= t_.size();
}

// One item: blanks and line ends before it are skipped; a quoted string runs to its closing
// quote; anything else runs to the next comma or line end. The separator after it is consumed.
std::string LectorSecuencial::Ítem(bool& entreComillas) {
  entreComillas = false;
  while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t' || t_[i_] == '\r' || t_[i_] == '\n'))
    if (t_[i_++] == '\n') ++línea_;
  líneaÍtem_ = línea_;
  if (i_ >= t_.size()) throw ErrorLectura("el archivo terminó antes de lo esperado");
  std::string r;
  if (t_[i_] == '"') {
    entreComillas = true;
    ++i_;
    const auto cierre = t_.find('"', i_);
    if (cierre == std::string::npos) throw ErrorLectura("texto sin comillas de cierre");
    r = t_.substr(i_, cierre - i_);
    línea_ += static_cast<long>(std::count(r.begin(), r.end(), '\n'));
    i_ = cierre + 1;
    while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t')) ++i_;
  } else {
    while (i_ < t_.size() && t_[i_] != ',' && t_[i_] != '\r' && t_[i_] != '\n') r += t_[i_++];
    r = Recortar(r);
  }
  if (i_ < t_.size()) {
    if (t_[i_] == ',') ++i_;
    else if (t_[i_] == '\r') { ++i_; if (i_ < t_.size() && t_[i_] == '\n') { ++i_; ++línea_; } }
    else if (t_[i_] == '\n') { ++i_; ++línea_; }
    else throw ErrorLectura("después de un texto entre comillas se esperaba una coma o el fin de la línea");
  }
  return r;
}

long LectorSecuencial::Caben(long ítemsPorRegistro) const {
  // Every item takes at least one character and one separator.
  const long quedan = static_cast<long>((t_.size() - std::min(i_, t_.size()) + 1) / 2);
  return quedan / std::max(1L, ítemsPorRegistro);
}

void LectorSecuencial::ComprobarCuenta(long registros, long ítemsPorRegistro) const {
  if (registros > 0 && ítemsPorRegistro > 0 && registros > Caben(ítemsPorRegistro))
    throw ErrorLectura("la cuenta " + std::to_string(registros) +
                       " pide más datos de los que quedan en el archivo");
}

std::string LectorSecuencial::LeerTexto() {
  bool comillas;
  std::string s = Ítem(comillas);
  // An empty item between two separators reads as an empty text, as older readers took it.
  if (!comillas && !s.empty()) throw ErrorLectura("se esperaba un texto entre comillas y se encontró " + s);
  return s;
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
  if (!EsNúmero(s)) {
    // Rounded to 15 digits, a value next to the largest double reads back past it: the digits are
    // cut instead of rounded, one unit less in the last place, which reads back.
    auto m = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, 14);
    std::string t(buf, m.ptr);
    const auto e = t.find('e');
    std::string dígitos = t.substr(t[0] == '-' ? 1 : 0, e - (t[0] == '-' ? 1 : 0));
    dígitos.erase(1, 1);  // the point
    const long long mantisa = std::stoll(dígitos) - 1;
    const std::string d = std::to_string(mantisa);
    const std::string cortado = (t[0] == '-' ? "-" : "") + d.substr(0, 1) + "." + d.substr(1) + "E" + t.substr(e + 1);
    return RealParaArchivo(ANúmero(cortado));
  }
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
  return EscribirArchivoCompleto(ruta, CodificarWindows1252(texto_), error);
}

bool EscribirArchivoCompleto(const std::string& ruta, const std::string& bytes, std::string* error) {
  namespace fs = std::filesystem;
  auto fallar = [&](const std::string& qué) {
    if (error) *error = qué;
    return false;
  };
  std::error_code ec;
  // Through a symbolic link the file written is its target; the link stays as it is.
  fs::path destino = ruta;
  for (int saltos = 0; fs::is_symlink(fs::symlink_status(destino, ec)); ++saltos) {
    if (saltos > 40) return fallar("demasiados enlaces simbólicos encadenados");
    const fs::path apunta = fs::read_symlink(destino, ec);
    if (ec) return fallar("no se pudo seguir el enlace simbólico: " + ec.message());
    destino = apunta.is_absolute() ? apunta : destino.parent_path() / apunta;
  }
  const fs::file_status estado = fs::status(destino, ec);
  if (fs::exists(estado) && !fs::is_regular_file(estado))
    return fallar(fs::is_directory(estado) ? "el nombre es el de una carpeta" : "el nombre no es el de un archivo común");
  const fs::path carpeta = destino.has_parent_path() ? destino.parent_path() : fs::path(".");
  std::string plantilla = (carpeta / ("." + destino.filename().string() + ".XXXXXX")).string();
#if defined(__unix__) || defined(__APPLE__)
  const int fd = ::mkstemp(plantilla.data());
  if (fd < 0) return fallar("no se pudo crear un archivo temporal en la carpeta (" + std::string(std::strerror(errno)) + ")");
  const std::string temporal = plantilla;
  auto descartar = [&](const std::string& qué) {
    ::close(fd);
    std::error_code e2;
    fs::remove(temporal, e2);  // the temporary file is ours: nobody else named it
    return fallar(qué);
  };
  // The permissions of the file replaced, or those of a new file under the user's mask.
  mode_t modo;
  struct stat previo;
  if (::stat(destino.c_str(), &previo) == 0) {
    modo = previo.st_mode & 07777;
  } else {
    const mode_t máscara = ::umask(0);
    ::umask(máscara);
    modo = 0666 & ~máscara;
  }
  if (::fchmod(fd, modo) != 0) return descartar("no se pudieron fijar los permisos del archivo");
  for (std::size_t hecho = 0; hecho < bytes.size();) {
    const ssize_t n = ::write(fd, bytes.data() + hecho, bytes.size() - hecho);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return descartar("no se pudo escribir el archivo completo (" + std::string(std::strerror(errno)) + ")");
    hecho += static_cast<std::size_t>(n);
  }
  if (::fsync(fd) != 0) return descartar("no se pudo llevar el archivo al disco");
  if (::close(fd) != 0) {
    std::error_code e2;
    fs::remove(temporal, e2);
    return fallar("no se pudo cerrar el archivo");
  }
#else
  const std::string temporal = plantilla.substr(0, plantilla.size() - 6) + "tmp~";
  if (fs::exists(temporal, ec)) return fallar("ya existe un archivo con el nombre temporal " + temporal);
  {
    std::ofstream f(temporal, std::ios::binary | std::ios::trunc);
    if (!f) return fallar("no se pudo crear el archivo " + temporal);
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    f.flush();
    f.close();
    if (f.fail()) {
      fs::remove(temporal, ec);
      return fallar("no se pudo escribir el archivo completo");
    }
  }
  if (fs::exists(destino, ec)) fs::permissions(temporal, fs::status(destino, ec).permissions(), ec);
#endif
  fs::rename(temporal, destino, ec);
  if (ec) {
    const std::string motivo = ec.message();
    std::error_code e2;
    fs::remove(temporal, e2);
    return fallar("no se pudo reemplazar el archivo: " + motivo);
  }
#if defined(__unix__) || defined(__APPLE__)
  // The rename itself reaches the disk with the folder.
  const int dir = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY);
  if (dir >= 0) {
    ::fsync(dir);
    ::close(dir);
  }
#endif
  return true;
}

}  // namespace lomaterra
