#include "salida/resumen.h"

#include <cmath>
#include <functional>
#include <memory>

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
  // A finished calculation shows its results whatever its factor: zero or negative is a result.
  if (p.NúmeroIteraciones < 1 || !std::isfinite(FactorDeSeguridadFinal(p))) return false;
  const auto& d = p.TablaDovelas;
  return d.XMedio.Tamaño() >= n && d.Ancho.Tamaño() >= n && d.YBase.Tamaño() >= n &&
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

namespace {

// Ordinate of a line of descending X at x, straight between its points, prolonged at its ends.
double OrdenadaEnLínea(const TablaXY& t, long m, double x, bool& hallada) {
  hallada = false;
  if (m < 2) return 0;
  for (long k = 1; k < m; ++k) {
    const double xa = t.X.Leer(k), xb = t.X.Leer(k + 1);
    if ((xa - x) * (xb - x) <= 0 && xa != xb) {
      hallada = true;
      return t.Y.Leer(k) + (x - xa) * (t.Y.Leer(k + 1) - t.Y.Leer(k)) / (xb - xa);
    }
  }
  return 0;
}

double Recta(double x0, double y0, double x1, double y1, double x) {
  return x1 != x0 ? y0 + (x - x0) * (y1 - y0) / (x1 - x0) : 0.5 * (y0 + y1);
}

}  // namespace

BordesDeDovelas Bordes(const Proyecto& p) {
  BordesDeDovelas b;
  const long n = NúmeroDeDovelas(p);
  b.n = n;
  b.x.assign(static_cast<std::size_t>(n + 2), 0.0);
  b.yFalla = b.x;
  b.yTalud = b.x;
  if (n < 1) return b;
  const auto& d = p.TablaDovelas;
  auto en = [](std::vector<double>& v, long i) -> double& { return v[static_cast<std::size_t>(i)]; };
  b.guardados = d.BordeX.Tamaño() > n && d.BordeYFalla.Tamaño() > n && d.BordeYTalud.Tamaño() > n;
  if (b.guardados) {
    for (long i = 1; i <= n + 1; ++i) {
      en(b.x, i) = d.BordeX[i];
      en(b.yFalla, i) = d.BordeYFalla[i];
      en(b.yTalud, i) = d.BordeYTalud[i];
    }
    return b;
  }
  const auto xm = [&](long i) { return d.XMedio.Leer(i); };
  const auto yb = [&](long i) { return d.YBase.Leer(i); };
  const auto yt = [&](long i) { return d.YTalud.Leer(i); };
  en(b.x, 1) = xm(1) + 0.5 * d.Ancho.Leer(1);
  for (long i = 1; i <= n; ++i) en(b.x, i + 1) = xm(i) - 0.5 * d.Ancho.Leer(i);
  for (long i = 2; i <= n; ++i) {
    en(b.yFalla, i) = Recta(xm(i - 1), yb(i - 1), xm(i), yb(i), en(b.x, i));
    en(b.yTalud, i) = Recta(xm(i - 1), yt(i - 1), xm(i), yt(i), en(b.x, i));
  }
  // The ends: prolonged from the two nearest middles, unless the failure surface ends there.
  const long u = n + 1;
  en(b.yFalla, 1) = n > 1 ? Recta(xm(1), yb(1), xm(2), yb(2), en(b.x, 1)) : yb(1);
  en(b.yFalla, u) = n > 1 ? Recta(xm(n - 1), yb(n - 1), xm(n), yb(n), en(b.x, u)) : yb(n);
  en(b.yTalud, 1) = n > 1 ? Recta(xm(1), yt(1), xm(2), yt(2), en(b.x, 1)) : yt(1);
  en(b.yTalud, u) = n > 1 ? Recta(xm(n - 1), yt(n - 1), xm(n), yt(n), en(b.x, u)) : yt(n);
  const long m = p.NúmeroPuntosFalla;
  if (m >= 2) {
    if (std::abs(p.CoordenadasFalla.X.Leer(1) - en(b.x, 1)) < 0.05) en(b.yFalla, 1) = p.CoordenadasFalla.Y.Leer(1);
    if (std::abs(p.CoordenadasFalla.X.Leer(m) - en(b.x, u)) < 0.05) en(b.yFalla, u) = p.CoordenadasFalla.Y.Leer(m);
  }
  for (long i = 1; i <= u; ++i) {
    bool hallada = false;
    const double y = OrdenadaEnLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, en(b.x, i), hallada);
    if (hallada) en(b.yTalud, i) = y;
  }
  return b;
}

double LongitudBase(const BordesDeDovelas& b, long i) {
  if (i < 1 || i > b.n) return 0;
  const auto k = static_cast<std::size_t>(i);
  return std::hypot(b.x[k] - b.x[k + 1], b.yFalla[k] - b.yFalla[k + 1]);
}

double InclinaciónBase(const BordesDeDovelas& b, long i) {
  if (i < 1 || i > b.n) return 0;
  const auto k = static_cast<std::size_t>(i);
  return std::atan2(b.yFalla[k] - b.yFalla[k + 1], b.x[k] - b.x[k + 1]);
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
  const auto b = std::make_shared<const BordesDeDovelas>(Bordes(p));
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
       [b](const Proyecto&, long i) { return InclinaciónBase(*b, i) * 45.0 / std::atan(1.0); },
       "#0.00"});
  r.push_back(
      {"Longitud base (m)", [b](const Proyecto&, long i) { return LongitudBase(*b, i); }, "#0.00"});
  si(d.PesoUnitarioMedio, De("Peso unitario medio (ton/m3)", &D::PesoUnitarioMedio, "#0.000"));
  si(d.PresiónPoros, De("Presión de poros u (ton/m2)", &D::PresiónPoros));
  if (!roca || p.ParámetrosIniciales.UsaParámetrosInstantáneos) {
    si(d.CohesiónBase, De("Cohesión c (ton/m2)", &D::CohesiónBase));
    si(d.FricciónBase, De("Fricción φ (°)", &D::FricciónBase));
  } else {
    // In rock the bases carry the cohesion and friction equivalent to the Hoek-Brown curve.
    si(d.CohesiónBase, De("Cohesión equivalente c (ton/m2)", &D::CohesiónBase));
    si(d.FricciónBase, De("Fricción equivalente φ (°)", &D::FricciónBase));
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
