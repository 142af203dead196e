#include "lote/json_prueba.h"

#include "proyecto/compat.h"

#include <cctype>
#include <cstdlib>
#include <stdexcept>

namespace lomaterra::pruebas {

namespace {

class Lector {
 public:
  explicit Lector(const std::string& t) : t_(t) {}

  ValorJson Documento() {
    ValorJson v = Valor();
    Blancos();
    if (i_ != t_.size()) Fallar("texto después del valor");
    return v;
  }

 private:
  [[noreturn]] void Fallar(const std::string& qué) { throw std::runtime_error(qué + " en la posición " + std::to_string(i_)); }
  void Blancos() {
    while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t' || t_[i_] == '\n' || t_[i_] == '\r')) ++i_;
  }
  bool Es(char c) {
    Blancos();
    return i_ < t_.size() && t_[i_] == c;
  }
  void Esperar(char c) {
    if (!Es(c)) Fallar(std::string("se esperaba ") + c);
    ++i_;
  }
  void Palabra(const char* w) {
    for (const char* p = w; *p; ++p, ++i_)
      if (i_ >= t_.size() || t_[i_] != *p) Fallar(std::string("se esperaba ") + w);
  }

  ValorJson Valor() {
    Blancos();
    if (i_ >= t_.size()) Fallar("falta un valor");
    ValorJson v;
    const char c = t_[i_];
    if (c == '{') {
      v.tipo = ValorJson::Objeto;
      ++i_;
      if (Es('}')) { ++i_; return v; }
      do {
        Blancos();
        if (!Es('"')) Fallar("se esperaba una clave");
        std::string clave = Cadena();
        Esperar(':');
        v.objeto.emplace_back(clave, Valor());
      } while (Es(',') && (++i_, true));
      Esperar('}');
    } else if (c == '[') {
      v.tipo = ValorJson::Lista;
      ++i_;
      if (Es(']')) { ++i_; return v; }
      do v.lista.push_back(Valor());
      while (Es(',') && (++i_, true));
      Esperar(']');
    } else if (c == '"') {
      v.tipo = ValorJson::Texto;
      v.texto = Cadena();
    } else if (c == 't') {
      Palabra("true");
      v.tipo = ValorJson::Lógico;
      v.lógico = true;
    } else if (c == 'f') {
      Palabra("false");
      v.tipo = ValorJson::Lógico;
    } else if (c == 'n') {
      Palabra("null");
    } else {
      v.tipo = ValorJson::Número;
      v.número = Número();
    }
    return v;
  }

  double Número() {
    const std::size_t inicio = i_;
    auto dígitos = [&] {
      const std::size_t a = i_;
      while (i_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_]))) ++i_;
      if (i_ == a) Fallar("número mal formado");
    };
    if (t_[i_] == '-') ++i_;
    if (i_ < t_.size() && t_[i_] == '0') {
      ++i_;
      if (i_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_]))) Fallar("cero a la izquierda");
    } else {
      dígitos();
    }
    if (i_ < t_.size() && t_[i_] == '.') { ++i_; dígitos(); }
    if (i_ < t_.size() && (t_[i_] == 'e' || t_[i_] == 'E')) {
      ++i_;
      if (i_ < t_.size() && (t_[i_] == '+' || t_[i_] == '-')) ++i_;
      dígitos();
    }
    return ANúmero(t_.substr(inicio, i_ - inicio));
  }

  static void Utf8(std::string& s, unsigned c) {
    if (c < 0x80) s += static_cast<char>(c);
    else if (c < 0x800) { s += static_cast<char>(0xC0 | (c >> 6)); s += static_cast<char>(0x80 | (c & 0x3F)); }
    else { s += static_cast<char>(0xE0 | (c >> 12)); s += static_cast<char>(0x80 | ((c >> 6) & 0x3F)); s += static_cast<char>(0x80 | (c & 0x3F)); }
  }

  std::string Cadena() {
    ++i_;  // the opening quote
    std::string r;
    while (true) {
      if (i_ >= t_.size()) Fallar("texto sin cerrar");
      const char c = t_[i_++];
      if (c == '"') return r;
      if (static_cast<unsigned char>(c) < 0x20) Fallar("carácter de control sin escapar");
      if (c != '\\') { r += c; continue; }
      if (i_ >= t_.size()) Fallar("escape sin cerrar");
      const char e = t_[i_++];
      switch (e) {
        case '"': r += '"'; break;
        case '\\': r += '\\'; break;
        case '/': r += '/'; break;
        case 'b': r += '\b'; break;
        case 'f': r += '\f'; break;
        case 'n': r += '\n'; break;
        case 'r': r += '\r'; break;
        case 't': r += '\t'; break;
        case 'u': {
          if (i_ + 4 > t_.size()) Fallar("escape \\u corto");
          unsigned v = 0;
          for (int k = 0; k < 4; ++k) {
            const char h = t_[i_++];
            if (!std::isxdigit(static_cast<unsigned char>(h))) Fallar("escape \\u mal formado");
            v = v * 16 + static_cast<unsigned>(std::isdigit(static_cast<unsigned char>(h)) ? h - '0' : (std::tolower(h) - 'a' + 10));
          }
          Utf8(r, v);
          break;
        }
        default: Fallar("escape desconocido");
      }
    }
  }

  const std::string& t_;
  std::size_t i_ = 0;
};

}  // namespace

const ValorJson* ValorJson::Campo(const std::string& clave) const {
  for (const auto& [k, v] : objeto)
    if (k == clave) return &v;
  return nullptr;
}

bool LeerJson(const std::string& texto, ValorJson& valor, std::string& error) {
  try {
    valor = Lector(texto).Documento();
    return true;
  } catch (const std::exception& e) {
    error = e.what();
    return false;
  }
}

}  // namespace lomaterra::pruebas
