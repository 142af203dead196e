#include "busqueda_lote.h"

#include <cmath>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "equilibrio/busqueda.h"
#include "pantallas/busqueda.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "resumen.h"

namespace lomaterra::lote {

const char* const kComandoBúsqueda = "BúsquedaCírculoCrítico";

namespace {

// A small reader for one flat JSON object: numbers, texts, true/false and lists of numbers.
struct ValorJson {
  enum class Tipo { Número, Texto, Lógico, Lista } tipo = Tipo::Número;
  double número = 0;
  std::string texto;
  bool lógico = false;
  std::vector<double> lista;
};

class LectorJson {
 public:
  explicit LectorJson(std::string t) : t_(std::move(t)) {}

  std::string Objeto(std::vector<std::pair<std::string, ValorJson>>& campos) {
    Blancos();
    if (!Toma('{')) return "se esperaba '{' al comienzo";
    Blancos();
    if (Toma('}')) return Fin();
    for (;;) {
      std::string clave;
      if (auto e = Texto(clave); !e.empty()) return e;
      Blancos();
      if (!Toma(':')) return "se esperaba ':' después de \"" + clave + "\"";
      ValorJson v;
      if (auto e = Valor(v); !e.empty()) return e + " en \"" + clave + "\"";
      campos.emplace_back(clave, std::move(v));
      Blancos();
      if (Toma('}')) return Fin();
      if (!Toma(',')) return "se esperaba ',' o '}' después de \"" + clave + "\"";
      Blancos();
    }
  }

 private:
  void Blancos() {
    while (i_ < t_.size() && std::isspace(static_cast<unsigned char>(t_[i_]))) ++i_;
  }
  bool Toma(char c) {
    if (i_ < t_.size() && t_[i_] == c) {
      ++i_;
      return true;
    }
    return false;
  }
  std::string Fin() {
    Blancos();
    return i_ == t_.size() ? "" : "sobra texto después del objeto";
  }
  std::string Texto(std::string& s) {
    if (!Toma('"')) return "se esperaba un nombre entre comillas";
    while (i_ < t_.size() && t_[i_] != '"') {
      if (t_[i_] == '\\' && i_ + 1 < t_.size()) ++i_;
      s += t_[i_++];
    }
    return Toma('"') ? "" : "falta la comilla de cierre";
  }
  std::string Número(double& x) {
    const std::size_t inicio = i_;
    while (i_ < t_.size() && (std::isdigit(static_cast<unsigned char>(t_[i_])) || std::string("+-.eE").find(t_[i_]) != std::string::npos))
      ++i_;
    const std::string s = t_.substr(inicio, i_ - inicio);
    if (!EsNúmero(s)) return "se esperaba un número";
    x = ANúmero(s);
    return "";
  }
  std::string Valor(ValorJson& v) {
    Blancos();
    if (i_ < t_.size() && t_[i_] == '"') {
      v.tipo = ValorJson::Tipo::Texto;
      return Texto(v.texto);
    }
    if (t_.compare(i_, 4, "true") == 0 || t_.compare(i_, 5, "false") == 0) {
      v.tipo = ValorJson::Tipo::Lógico;
      v.lógico = t_[i_] == 't';
      i_ += v.lógico ? 4 : 5;
      return "";
    }
    if (Toma('[')) {
      v.tipo = ValorJson::Tipo::Lista;
      Blancos();
      if (Toma(']')) return "";
      for (;;) {
        Blancos();
        double x = 0;
        if (auto e = Número(x); !e.empty()) return e;
        v.lista.push_back(x);
        Blancos();
        if (Toma(']')) return "";
        if (!Toma(',')) return "se esperaba ',' o ']'";
      }
    }
    v.tipo = ValorJson::Tipo::Número;
    return Número(v.número);
  }

  std::string t_;
  std::size_t i_ = 0;
};

std::string AplicarOpciones(const std::vector<std::pair<std::string, ValorJson>>& campos,
                            OpcionesBúsqueda& o, bool& usar) {
  struct Real {
    const char* clave;
    double OpcionesBúsqueda::*campo;
  };
  static const Real reales[] = {{"x1", &OpcionesBúsqueda::x1},
                                {"y1", &OpcionesBúsqueda::y1},
                                {"x2", &OpcionesBúsqueda::x2},
                                {"y2", &OpcionesBúsqueda::y2},
                                {"radioMínimo", &OpcionesBúsqueda::radioMínimo},
                                {"radioMáximo", &OpcionesBúsqueda::radioMáximo},
                                {"pasoRadio", &OpcionesBúsqueda::pasoRadio},
                                {"xSalidaMínima", &OpcionesBúsqueda::xSalidaMínima},
                                {"xSalidaMáxima", &OpcionesBúsqueda::xSalidaMáxima}};
  struct Ent {
    const char* clave;
    int OpcionesBúsqueda::*campo;
  };
  static const Ent enteros[] = {{"divisionesX", &OpcionesBúsqueda::divisionesX},
                                {"divisionesY", &OpcionesBúsqueda::divisionesY},
                                {"dovelas", &OpcionesBúsqueda::dovelas},
                                {"hilos", &OpcionesBúsqueda::hilos}};
  for (const auto& [clave, v] : campos) {
    bool hecho = false;
    for (const auto& r : reales)
      if (clave == r.clave) {
        if (v.tipo != ValorJson::Tipo::Número) return "\"" + clave + "\" debe ser un número";
        o.*(r.campo) = v.número;
        hecho = true;
      }
    for (const auto& r : enteros)
      if (clave == r.clave) {
        if (v.tipo != ValorJson::Tipo::Número || v.número != std::floor(v.número) || std::fabs(v.número) > 1e6)
          return "\"" + clave + "\" debe ser un número entero";
        o.*(r.campo) = static_cast<int>(v.número);
        hecho = true;
      }
    if (clave == "cotasTangencia") {
      if (v.tipo != ValorJson::Tipo::Lista) return "\"cotasTangencia\" debe ser una lista de números";
      o.cotasTangencia = v.lista;
      hecho = true;
    } else if (clave == "método") {
      if (v.tipo != ValorJson::Tipo::Texto || (v.texto != "Bishop" && v.texto != "Janbu"))
        return "\"método\" debe ser \"Bishop\" o \"Janbu\"";
      o.método = v.texto == "Janbu" ? MétodoBúsqueda::Janbu : MétodoBúsqueda::Bishop;
      hecho = true;
    } else if (clave == "usar") {
      if (v.tipo != ValorJson::Tipo::Lógico) return "\"usar\" debe ser true o false";
      usar = v.lógico;
      hecho = true;
    }
    if (!hecho) return "clave desconocida \"" + clave + "\"";
  }
  return "";
}

std::string CírculoJson(const CírculoEvaluado& c) {
  return "{\"xc\": " + NúmeroJson(c.xc) + ", \"yc\": " + NúmeroJson(c.yc) + ", \"radio\": " +
         NúmeroJson(c.radio) + ", \"FS\": " + NúmeroJson(c.factor) + ", \"xPie\": " + NúmeroJson(c.xPie) +
         ", \"yPie\": " + NúmeroJson(c.yPie) + ", \"xCresta\": " + NúmeroJson(c.xCresta) +
         ", \"yCresta\": " + NúmeroJson(c.yCresta) + "}";
}

std::string Lista(const std::vector<double>& v) {
  std::string s = "[";
  for (std::size_t k = 0; k < v.size(); ++k) s += (k ? ", " : "") + NúmeroJson(v[k]);
  return s + "]";
}

}  // namespace

std::string CorrerBúsqueda(Proyecto& p, Interfaz& ui, const std::optional<std::string>& archivo,
                           std::string& json) {
  if (!PuertaBúsqueda(p, ui)) {
    json = "{\"hay\": false}";
    return "";
  }
  OpcionesBúsqueda o = OpcionesPorDefecto(p);
  bool usar = false;
  if (archivo) {
    std::ifstream f(*archivo, std::ios::binary);
    if (!f) return "no se pudo leer el archivo de opciones de la búsqueda \"" + *archivo + "\"";
    std::stringstream texto;
    texto << f.rdbuf();
    std::vector<std::pair<std::string, ValorJson>> campos;
    if (auto e = LectorJson(texto.str()).Objeto(campos); !e.empty())
      return "las opciones de la búsqueda en \"" + *archivo + "\": " + e;
    if (auto e = AplicarOpciones(campos, o, usar); !e.empty())
      return "las opciones de la búsqueda en \"" + *archivo + "\": " + e;
  }
  const ResultadoBúsqueda r = BuscarCírculoCrítico(p, o, &ui);
  std::ostringstream j;
  j << "{\"hay\": " << (r.hay ? "true" : "false") << ", \"mensaje\": " << TextoJson(r.mensaje)
    << ", \"método\": " << TextoJson(o.método == MétodoBúsqueda::Janbu ? "Janbu" : "Bishop")
    << ", \"círculos\": " << r.círculos << ", \"admisibles\": " << r.admisibles
    << ", \"xCentro\": " << Lista(r.xCentro) << ", \"yCentro\": " << Lista(r.yCentro)
    << ", \"mínimoPorCentro\": [";
  for (int f = 0; f < r.filas; ++f) {
    std::vector<double> fila(r.mínimoPorCentro.begin() + f * r.columnas,
                             r.mínimoPorCentro.begin() + (f + 1) * r.columnas);
    j << (f ? ", " : "") << Lista(fila);
  }
  j << "], \"menores\": [";
  for (std::size_t k = 0; k < r.menores.size(); ++k) j << (k ? ", " : "") << CírculoJson(r.menores[k]);
  j << "]}";
  json = j.str();

  if (!r.hay) {
    ui.Mensaje(r.mensaje, "Búsqueda del círculo crítico");
    return "";
  }
  const CírculoEvaluado& c = r.menores.front();
  std::ostringstream s;
  s << "Búsqueda del círculo crítico: " << r.círculos << " círculos, " << r.admisibles
    << " admisibles. Factor mínimo " << Formato(c.factor, "#0.000") << " en el centro ("
    << Formato(c.xc, "#0.00") << ", " << Formato(c.yc, "#0.00") << "), radio " << Formato(c.radio, "#0.00") << " m.";
  ui.Estado(s.str());
  if (usar) {
    UsarCírculo(p, c);
    ui.Estado("El círculo crítico es ahora la superficie de falla del proyecto.");
  }
  return "";
}

}  // namespace lomaterra::lote
