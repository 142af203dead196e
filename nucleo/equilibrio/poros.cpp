// The sixth stage of the slice pipeline: pore pressure at the slice bases (phreatic line, excess
// of the fills reduced by consolidation, rapid drawdown) and the mean unit weight of each column.
#include <algorithm>
#include <cmath>
#include <vector>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_interno.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"

namespace lomaterra {

using namespace interno;

namespace {

const char* const kPreguntaPresiones =
    "Ya existen presión de poros. ¿Desea estimarlas a partir de las coordenadas del nivel freático?";

// Excess pore pressure of slice i from the parameter B of the fills above its base, less what
// consolidation has dissipated during construction.
double Exceso(const Proyecto& p, long i, const std::vector<double>& cima, const std::vector<double>& pie) {
  const auto& d = p.TablaDovelas;
  const auto& E = p.Estrato;
  const int base = EstratoDeBase(p, i);
  if (base == 0) return 0.0;
  const double yt = d.YTalud[i], yb = d.YBase[i], yf = d.YFreático[i];
  double arrastre = 0, yc = yt, tv = 0;
  for (int s = 1; s <= base; ++s) {
    const double ys = d.YEstrato(s, i);
    const double yp = s == 1 ? yt : d.YEstrato(s - 1, i);
    if (E.TipoEstrato.Leer(s) == 1) {
      const double espesor = s == base ? yp - yb : yp - ys;
      arrastre += espesor * E.PesoUnitarioHúmedo.Leer(s);
      if (s == 1 && yf > yt && !p.DesembalseRápido) arrastre += yf - yt;
    }
    const double cv = E.CoeficienteConsolidaciónVertical.Leer(s);
    const double construcción = E.TiempoDeConstrucción.Leer(s);
    if (cv == 0) {
      yc = ys;
    } else if (cv > 0 && yp > ys) {
      // Effective time: the construction time of the stratum in proportion to the height already
      // built over the base. Heights are thicknesses, measured from the foot of the stratum (the
      // lowest point of its lower line) up to its top, so that the datum of the section plays no
      // part: T = t·(top at the slice - YBase) / (crest of the top - foot). For the first stratum
      // the top is the surface and its crest HMáxima: with the foot at y = 0 this is
      // t·(YTalud - YBase) / HMáxima. A stratum built in no time dissipates nothing.
      double tiempo = 0;
      if (construcción != 0) {
        const std::size_t k = static_cast<std::size_t>(s);
        tiempo = Div(construcción * (yp - yb), cima[k - 1] - pie[k],
                     "el tiempo efectivo de consolidación");
      }
      double h = yc - ys;
      if (E.CoeficienteConsolidaciónVertical.Leer(s + 1) == 0) h = (yc - ys) / 2;
      tv = Div(3153.6 * cv * (tiempo / 24), h * h, "el factor tiempo de consolidación");
    }
    if (s == base) {
      double u = Raíz(4 * tv / 3.1415, "el grado de consolidación") * 100;
      if (u > 60) u = 100 - std::pow(10.0, (1.781 - tv) / 0.933);
      const double disipada = arrastre * u / 100;
      return yf > yb ? arrastre * E.ParámetroPresión.Leer(s) - disipada : 0.0;
    }
  }
  return 0.0;
}

// Mean unit weight of the column of slice i: moist above the phreatic line, saturated below it.
double PesoMedio(const Proyecto& p, long i) {
  const auto& d = p.TablaDovelas;
  const auto& E = p.Estrato;
  const double yt = d.YTalud[i], yb = d.YBase[i], yf = d.YFreático[i];
  const bool saturada = yf >= yt;
  double suma = 0, arriba = yt;
  for (int s = 1; s <= p.NúmeroEstratos; ++s) {
    const double línea = d.YEstrato(s, i);
    if (línea > yt) continue;
    const bool alcanza = línea <= yb + 0.001;
    const double abajo = alcanza ? yb : línea;
    const double espesor = arriba - abajo;
    double húmedo = 0;
    if (!saturada) húmedo = yf <= abajo ? espesor : std::max(0.0, arriba - yf);
    const double sumergido = espesor - húmedo;
    suma += húmedo * E.PesoUnitarioHúmedo.Leer(s) + sumergido * E.PesoUnitarioSaturado.Leer(s);
    arriba = abajo;
    if (alcanza) break;
  }
  return Div(suma, yt - yb, "el peso unitario medio de una dovela");
}

}  // namespace

void PresiónYPesoEnDovelas(Proyecto& p, Interfaz& ui) {
  auto& d = p.TablaDovelas;
  const long nd = NúmeroDeDovelas(p);
  d.AlturaAguaSobreTalud.Redimensionar(nd);
  d.PesoUnitarioMedio.Redimensionar(nd);
  d.PendienteBase.Redimensionar(nd);
  d.PresiónPorosMedia.Redimensionar(nd);
  d.PresiónPoros.RedimensionarConservando(nd);

  bool existen = false;
  for (long i = 1; i <= nd; ++i) existen = existen || d.PresiónPoros[i] > 0;
  bool estimar = true;
  if (existen) {
    p.PresionesExistentes = true;
    estimar = ui.Pregunta(kPreguntaPresiones);
  }
  if (estimar) d.PresiónPoros.Redimensionar(nd);

  // Crest of each boundary (0: the surface, HMáxima) and foot of each stratum (lowest point of
  // its lower line).
  const std::size_t ne = static_cast<std::size_t>(std::max<int>(p.NúmeroEstratos, 0));
  std::vector<double> cima(ne + 1, -100000000), pie(ne + 1, 100000000);
  for (long k = 1; k <= p.NúmeroPuntosTalud; ++k) cima[0] = std::max(cima[0], p.CoordenadasTalud.Y[k]);
  for (std::size_t s = 1; s <= ne; ++s)
    for (long j = 1; j <= p.PuntosEstrato.Leer(static_cast<long>(s)); ++j) {
      cima[s] = std::max(cima[s], p.YEstrato(static_cast<long>(s), j));
      pie[s] = std::min(pie[s], p.YEstrato(static_cast<long>(s), j));
    }

  const bool suelo = p.TipoDeMaterial != "R";
  for (long i = 1; i <= nd; ++i) {
    d.PendienteBase[i] = Div(d.BordeYFalla[i] - d.BordeYFalla[i + 1], d.BordeX[i] - d.BordeX[i + 1],
                             "la pendiente de la base de una dovela");
    double e = 0;
    if (d.BordeYFreático[i] > d.BordeYFalla[i] && d.BordeYFreático[i + 1] > d.BordeYFalla[i + 1])
      e = (d.BordeYFreático[i] - d.BordeYFalla[i]) - (d.BordeYFreático[i + 1] - d.BordeYFalla[i + 1]);
    const double yf = d.YFreático[i], yb = d.YBase[i], yt = d.YTalud[i];
    if (estimar) d.PresiónPoros[i] = yf > yb ? yf - yb : 0.0;
    if (yf > yt) d.AlturaAguaSobreTalud[i] = p.DesembalseRápido ? 0.0 : yf - yt;
    const double exceso = suelo ? Exceso(p, i, cima, pie) : 0.0;
    if (yf > yb) d.PresiónPoros[i] += exceso;
    d.PresiónPorosMedia[i] = Div(e + exceso, d.Ancho[i], "la presión de poros media de una dovela");
    d.PesoUnitarioMedio[i] = PesoMedio(p, i);
  }
  p.EtapaPoros = true;
}

}  // namespace lomaterra
