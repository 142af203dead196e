#include "resumen.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

#include "equilibrio/referencia.h"
#include "proyecto/compat.h"

namespace lomaterra::lote {

namespace {

struct ColumnaDovela {
  const char* nombre;
  Tabla<double> TablaDeDovelas::*columna;
};

const ColumnaDovela kColumnas[] = {
    {"XMedio", &TablaDeDovelas::XMedio},
    {"YBase", &TablaDeDovelas::YBase},
    {"YTalud", &TablaDeDovelas::YTalud},
    {"Ancho", &TablaDeDovelas::Ancho},
    {"PesoUnitarioMedio", &TablaDeDovelas::PesoUnitarioMedio},
    {"PresiónPoros", &TablaDeDovelas::PresiónPoros},
    {"ÁnguloBase", &TablaDeDovelas::ÁnguloBase},
    {"FuerzaNormal", &TablaDeDovelas::FuerzaNormal},
    {"EsfuerzoNormalTotal", &TablaDeDovelas::EsfuerzoNormalTotal},
    {"EsfuerzoNormalEfectivo", &TablaDeDovelas::EsfuerzoNormalEfectivo},
    {"EsfuerzoTangencial", &TablaDeDovelas::EsfuerzoTangencial},
};

// Fixed decimals for the table people read; the JSON keeps every digit.
std::string Corto(double x) {
  if (!std::isfinite(x)) return "-";
  return Formato(x, "#0.0000");
}

std::string Completo(double x) {
  if (!std::isfinite(x)) return "-";
  return NúmeroJson(x);
}

}  // namespace

std::string NúmeroJson(double x) {
  if (!std::isfinite(x)) return "null";
  if (x == 0) return "0";
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, x);
  return std::string(buf, r.ptr);
}

std::string TextoJson(const std::string& s) {
  std::string r = "\"";
  for (char c : s) {
    const unsigned char u = static_cast<unsigned char>(c);
    switch (c) {
      case '"': r += "\\\""; break;
      case '\\': r += "\\\\"; break;
      case '\n': r += "\\n"; break;
      case '\r': r += "\\r"; break;
      case '\t': r += "\\t"; break;
      default:
        if (u < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", u);
          r += buf;
        } else {
          r += c;
        }
    }
  }
  return r + "\"";
}

Resumen ResumirProyecto(const Proyecto& p) {
  Resumen r;
  r.NúmeroIteraciones = p.NúmeroIteraciones;
  r.NúmeroBordes = p.NúmeroBordes;
  if (p.NúmeroIteraciones > 0) {
    const double fs = p.HistoriaIteraciones.FactorDeSeguridad.Leer(p.NúmeroIteraciones);
    if (std::isfinite(fs)) r.FactorDeSeguridad = fs;
    const double m1 = p.HistoriaIteraciones.Multiplicador1.Leer(p.NúmeroIteraciones);
    const double m2 = p.HistoriaIteraciones.Multiplicador2.Leer(p.NúmeroIteraciones);
    if (std::isfinite(m1)) r.Multiplicador1 = m1;
    if (std::isfinite(m2)) r.Multiplicador2 = m2;
  }
  if (r.FactorDeSeguridad && r.NúmeroBordes > 1) {
    const FactoresReferencia f = FactoresDeReferencia(p);
    if (f.hay) r.FelleniusReferencia = f.fellenius;
    if (f.hayBishop) r.BishopReferencia = f.bishop;
    r.referencia = LíneasDeReferencia(f);
  }
  r.sumas = {{"SumaTangenciales", p.SumaTangenciales},
             {"SumaNormalesTotales", p.SumaNormalesTotales},
             {"SumaNormalesEfectivos", p.SumaNormalesEfectivos},
             {"SumaPrincipalesMayores", p.SumaPrincipalesMayores},
             {"SumaPrincipalesMenores", p.SumaPrincipalesMenores},
             {"SumaFuerzasHorizontales", p.SumaFuerzasHorizontales},
             {"SumaFuerzasVerticales", p.SumaFuerzasVerticales},
             {"SumaMomentos", p.SumaMomentos}};
  for (const auto& c : kColumnas) r.columnas.push_back(c.nombre);
  for (long i = 1; i <= p.NúmeroBordes - 1; ++i) {
    std::vector<double> fila;
    for (const auto& c : kColumnas) fila.push_back((p.TablaDovelas.*(c.columna)).Leer(i));
    r.dovelas.push_back(std::move(fila));
  }
  return r;
}

std::string ResumenComoTexto(const Resumen& r, const std::string& falla) {
  std::ostringstream s;
  s << "--- Resumen ---\n";
  if (!falla.empty())
    s << "FALLA: " << falla << ". Las cifras que siguen son las que el proyecto tenía al terminar, no el "
         "resultado de la corrida pedida.\n";
  s << "FactorDeSeguridad: " << (r.FactorDeSeguridad ? Completo(*r.FactorDeSeguridad) : "(sin cálculo)") << "\n";
  s << "Multiplicador1: " << (r.Multiplicador1 ? Completo(*r.Multiplicador1) : "(sin cálculo)") << "\n";
  s << "Multiplicador2: " << (r.Multiplicador2 ? Completo(*r.Multiplicador2) : "(sin cálculo)") << "\n";
  for (const auto& línea : r.referencia) s << "Referencia: " << línea << "\n";
  s << "NúmeroIteraciones: " << r.NúmeroIteraciones << "\n";
  s << "NúmeroBordes: " << r.NúmeroBordes << "\n";
  for (const auto& [nombre, valor] : r.sumas) s << nombre << ": " << Completo(valor) << "\n";
  s << "Dovelas: " << r.dovelas.size() << "\n";
  if (!r.dovelas.empty()) {
    s << "Dovela";
    for (const auto& c : r.columnas) s << '\t' << c;
    s << "\n";
    for (std::size_t i = 0; i < r.dovelas.size(); ++i) {
      s << (i + 1);
      for (double v : r.dovelas[i]) s << '\t' << Corto(v);
      s << "\n";
    }
  }
  return s.str();
}

std::string InformeComoJson(const InformeLote& informe) {
  const Resumen& r = informe.resumen;
  std::ostringstream s;
  s << "{\n";
  s << "  \"proyecto\": " << TextoJson(informe.proyecto) << ",\n";
  s << "  \"comandos\": [";
  for (std::size_t i = 0; i < informe.comandos.size(); ++i) s << (i ? ", " : "") << TextoJson(informe.comandos[i]);
  s << "],\n";
  s << "  \"transcripción\": [";
  for (std::size_t i = 0; i < informe.transcripción.size(); ++i)
    s << (i ? "," : "") << "\n    " << TextoJson(informe.transcripción[i]);
  s << (informe.transcripción.empty() ? "" : "\n  ") << "],\n";
  s << "  \"fallo\": " << (informe.fallo ? "true" : "false") << ",\n";
  if (!informe.búsqueda.empty()) s << "  \"Búsqueda\": " << informe.búsqueda << ",\n";
  s << "  \"FactorDeSeguridad\": " << (r.FactorDeSeguridad ? NúmeroJson(*r.FactorDeSeguridad) : "null") << ",\n";
  s << "  \"Multiplicador1\": " << (r.Multiplicador1 ? NúmeroJson(*r.Multiplicador1) : "null") << ",\n";
  s << "  \"Multiplicador2\": " << (r.Multiplicador2 ? NúmeroJson(*r.Multiplicador2) : "null") << ",\n";
  s << "  \"FelleniusReferencia\": " << (r.FelleniusReferencia ? NúmeroJson(*r.FelleniusReferencia) : "null") << ",\n";
  s << "  \"BishopReferencia\": " << (r.BishopReferencia ? NúmeroJson(*r.BishopReferencia) : "null") << ",\n";
  s << "  \"NotasReferencia\": [";
  for (std::size_t i = 0; i < r.referencia.size(); ++i) s << (i ? ", " : "") << TextoJson(r.referencia[i]);
  s << "],\n";
  s << "  \"NúmeroIteraciones\": " << r.NúmeroIteraciones << ",\n";
  s << "  \"NúmeroBordes\": " << r.NúmeroBordes << ",\n";
  for (const auto& [nombre, valor] : r.sumas) s << "  " << TextoJson(nombre) << ": " << NúmeroJson(valor) << ",\n";
  if (!informe.elementos.empty()) s << "  \"ElementosFinitos\": " << informe.elementos << ",\n";
  if (!informe.modos.empty()) s << "  \"modos\": " << informe.modos << ",\n";
  s << "  \"Dovelas\": [";
  for (std::size_t i = 0; i < r.dovelas.size(); ++i) {
    s << (i ? "," : "") << "\n    {";
    for (std::size_t k = 0; k < r.columnas.size(); ++k)
      s << (k ? ", " : "") << TextoJson(r.columnas[k]) << ": " << NúmeroJson(r.dovelas[i][k]);
    s << "}";
  }
  s << (r.dovelas.empty() ? "" : "\n  ") << "]\n";
  s << "}\n";
  return s.str();
}

}  // namespace lomaterra::lote
