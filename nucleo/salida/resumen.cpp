#include "salida/resumen.h"

#include <cmath>
#include <functional>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

long NúmeroDeDovelas(const Proyecto& p) {
  return p.NúmeroBordes > 1 ? p.NúmeroBordes - 1 : 0;
}

double FactorDeSeguridadFinal(const Proyecto& p) {
  if (p.NúmeroIteraciones < 1) return 0;
  return p.HistoriaIteraciones.FactorDeSeguridad.Leer(p.NúmeroIteraciones);
}

bool HayResultados(const Proyecto& p) {
  const long n = NúmeroDeDovelas(p);
  if (n < 1) return false;
  const double fs = FactorDeSeguridadFinal(p);
  if (!std::isfinite(fs) || fs <= 0) return false;
  const auto& d = p.TablaDovelas;
  return d.BordeX.Tamaño() > n && d.BordeYFalla.Tamaño() > n && d.XMedio.Tamaño() >= n &&
         d.EsfuerzoNormalTotal.Tamaño() >= n && d.EsfuerzoNormalEfectivo.Tamaño() >= n &&
         d.EsfuerzoTangencial.Tamaño() >= n;
}

std::string NombreDelMétodo(const Proyecto& p) {
  const bool roca = p.TipoDeMaterial == "R";
  switch (p.ParámetrosIniciales.MétodoDeCálculo) {
    case 1:
      return roca ? "Dov Leshchinsky - Ching y Hoek - Brown (m, s)"
                  : "Dov Leshchinsky y Ching-Chuan Huang";
    case 2:
      return "Bishop A. W.";
    case 3:
      return "Fellenius W.";
    case 4:
      return roca ? "Janbu aplicado a rocas" : "Janbu";
    default:
      return "sin método";
  }
}

bool ColumnaLlena(const Tabla<double>& columna, long n) {
  if (n < 1 || columna.Tamaño() < n) return false;
  for (long i = 1; i <= n; ++i)
    if (columna[i] != 0) return true;
  return false;
}

bool HayEsfuerzosPrincipales(const Proyecto& p) {
  const long n = NúmeroDeDovelas(p);
  return ColumnaLlena(p.TablaDovelas.EsfuerzoPrincipalMayor, n) ||
         ColumnaLlena(p.TablaDovelas.EsfuerzoPrincipalMenor, n);
}

double LongitudBase(const Proyecto& p, long i) {
  const auto& d = p.TablaDovelas;
  return std::hypot(d.BordeX.Leer(i) - d.BordeX.Leer(i + 1),
                    d.BordeYFalla.Leer(i) - d.BordeYFalla.Leer(i + 1));
}

double InclinaciónBase(const Proyecto& p, long i) {
  const auto& d = p.TablaDovelas;
  return std::atan2(d.BordeYFalla.Leer(i) - d.BordeYFalla.Leer(i + 1),
                    d.BordeX.Leer(i) - d.BordeX.Leer(i + 1));
}

namespace {

struct ColumnaDovela {
  std::string título;
  std::function<double(const Proyecto&, long)> valor;
  std::string formato;
};

ColumnaDovela De(std::string título, Tabla<double> TablaDeDovelas::*c,
                 std::string formato = "#0.00") {
  return {std::move(título), [c](const Proyecto& p, long i) { return (p.TablaDovelas.*c).Leer(i); },
          std::move(formato)};
}

// The columns shown for the current material, those that the calculation filled.
std::vector<ColumnaDovela> ColumnasDeDovelas(const Proyecto& p) {
  using D = TablaDeDovelas;
  const long n = NúmeroDeDovelas(p);
  const auto& d = p.TablaDovelas;
  const bool roca = p.TipoDeMaterial == "R";
  std::vector<ColumnaDovela> r;
  auto si = [&](const Tabla<double>& t, ColumnaDovela c) {
    if (t.Tamaño() >= n) r.push_back(std::move(c));
  };
  si(d.XMedio, De("X medio (m)", &D::XMedio));
  si(d.Ancho, De("Ancho (m)", &D::Ancho));
  si(d.YTalud, De("Y talud (m)", &D::YTalud));
  si(d.YBase, De("Y base (m)", &D::YBase));
  si(d.YFreático, De("Y freático (m)", &D::YFreático));
  r.push_back(
      {"Ángulo base (°)",
       [](const Proyecto& q, long i) { return InclinaciónBase(q, i) * 45.0 / std::atan(1.0); },
       "#0.00"});
  r.push_back(
      {"Longitud base (m)", [](const Proyecto& q, long i) { return LongitudBase(q, i); }, "#0.00"});
  si(d.PesoUnitarioMedio, De("Peso unitario medio (ton/m3)", &D::PesoUnitarioMedio, "#0.000"));
  si(d.PresiónPoros, De("Presión de poros u (ton/m2)", &D::PresiónPoros));
  if (!roca || p.ParámetrosIniciales.UsaParámetrosInstantáneos) {
    si(d.CohesiónBase, De("Cohesión c (ton/m2)", &D::CohesiónBase));
    si(d.FricciónBase, De("Fricción φ (°)", &D::FricciónBase));
  }
  if (roca) {
    if (!p.ParámetrosIniciales.UsaParámetrosInstantáneos) {
      si(d.m_Base, De("m macizo", &D::m_Base, "#0.0000"));
      si(d.s_Base, De("s macizo", &D::s_Base, "#0.000000"));
    }
    si(d.a_Base, De("a macizo", &D::a_Base, "#0.0000"));
    si(d.C_SimpleBase, De("σci (kg/cm2)", &D::C_SimpleBase));
  }
  if (ColumnaLlena(d.FuerzaNormal, n)) r.push_back(De("Fuerza normal N (ton/m)", &D::FuerzaNormal));
  si(d.EsfuerzoNormalTotal, De("Esfuerzo normal total σ (ton/m2)", &D::EsfuerzoNormalTotal));
  si(d.EsfuerzoNormalEfectivo,
     De("Esfuerzo normal efectivo σ' (ton/m2)", &D::EsfuerzoNormalEfectivo));
  si(d.EsfuerzoTangencial, De("Esfuerzo tangencial movilizado τ (ton/m2)", &D::EsfuerzoTangencial));
  if (roca || HayEsfuerzosPrincipales(p)) {
    si(d.EsfuerzoPrincipalMayor,
       De("Esfuerzo principal mayor σ1 (ton/m2)", &D::EsfuerzoPrincipalMayor));
    si(d.EsfuerzoPrincipalMenor,
       De("Esfuerzo principal menor σ3 (ton/m2)", &D::EsfuerzoPrincipalMenor));
  }
  return r;
}

// A number for the screen: never "nan" nor "inf".
std::string Número(double v, const std::string& formato) {
  if (!std::isfinite(v)) return "---";
  return Formato(v, formato);
}

}  // namespace

TablaDeTexto TablaResultadosDovelas(const Proyecto& p) {
  TablaDeTexto t;
  t.título = "Resultados en las dovelas";
  const auto columnas = ColumnasDeDovelas(p);
  t.columnas.push_back("Dovela");
  for (const auto& c : columnas) t.columnas.push_back(c.título);
  const long n = NúmeroDeDovelas(p);
  for (long i = 1; i <= n; ++i) {
    std::vector<std::string> fila{std::to_string(i)};
    for (const auto& c : columnas) fila.push_back(Número(c.valor(p, i), c.formato));
    t.filas.push_back(std::move(fila));
  }
  return t;
}

TablaDeTexto TablaHistoriaIteraciones(const Proyecto& p) {
  TablaDeTexto t;
  t.título = "Historia de las iteraciones";
  const bool multiplicadores = p.ParámetrosIniciales.MétodoDeCálculo == 1;
  t.columnas.push_back("Iteración");
  if (multiplicadores) {
    t.columnas.push_back("Multiplicador µ1");
    t.columnas.push_back("Multiplicador µ2");
  }
  t.columnas.push_back("Factor de seguridad");
  const auto& h = p.HistoriaIteraciones;
  for (long k = 1; k <= p.NúmeroIteraciones; ++k) {
    const double fs = h.FactorDeSeguridad.Leer(k);
    // After a file read only the last row is known; the rows before it read 0.
    if (fs == 0 && k < p.NúmeroIteraciones) continue;
    std::vector<std::string> fila{std::to_string(k)};
    if (multiplicadores) {
      fila.push_back(Número(h.Multiplicador1.Leer(k), "#0.000000"));
      fila.push_back(Número(h.Multiplicador2.Leer(k), "#0.000000"));
    }
    fila.push_back(Número(fs, "#0.000"));
    t.filas.push_back(std::move(fila));
  }
  return t;
}

TablaDeTexto TablaSumas(const Proyecto& p) {
  TablaDeTexto t;
  t.título = "Sumas de los esfuerzos en las bases";
  t.columnas = {"Suma", "Valor"};
  auto fila = [&](const std::string& nombre, double v) {
    t.filas.push_back({nombre, Número(v, "#0.00")});
  };
  fila("Suma de esfuerzos tangenciales (ton/m2)", p.SumaTangenciales);
  fila("Suma de esfuerzos normales totales (ton/m2)", p.SumaNormalesTotales);
  fila("Suma de esfuerzos normales efectivos (ton/m2)", p.SumaNormalesEfectivos);
  if (p.TipoDeMaterial == "R" || HayEsfuerzosPrincipales(p)) {
    fila("Suma de esfuerzos principales mayores (ton/m2)", p.SumaPrincipalesMayores);
    fila("Suma de esfuerzos principales menores (ton/m2)", p.SumaPrincipalesMenores);
  }
  if (p.ParámetrosIniciales.MétodoDeCálculo == 1) {
    fila("Suma de fuerzas horizontales (ton/m)", p.SumaFuerzasHorizontales);
    fila("Suma de fuerzas verticales (ton/m)", p.SumaFuerzasVerticales);
    fila("Suma de momentos (ton.m/m)", p.SumaMomentos);
  }
  return t;
}

std::string TextoTabulado(const TablaDeTexto& t) {
  std::string r;
  auto línea = [&](const std::vector<std::string>& celdas) {
    for (std::size_t k = 0; k < celdas.size(); ++k) {
      if (k) r += '\t';
      r += celdas[k];
    }
    r += '\n';
  };
  línea(t.columnas);
  for (const auto& f : t.filas) línea(f);
  return r;
}

}  // namespace lomaterra
