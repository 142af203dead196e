#include "equilibrio/fellenius.h"

#include <cmath>
#include <vector>

#include "equilibrio/bishop.h"
#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_interno.h"
#include "equilibrio/puertas.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

using namespace interno;

namespace {

bool UniformeEnDovela(const Proyecto& p, long k, long i) {
  const double x = p.TablaDovelas.XMedio[i];
  return p.CargaUniforme.xo.Leer(k) <= x && x <= p.CargaUniforme.xf.Leer(k);
}

bool PuntualEnDovela(const Proyecto& p, long k, long i) {
  const double x = p.CargaPuntual.Xpuntual.Leer(k);
  return p.TablaDovelas.BordeX[i + 1] <= x && x <= p.TablaDovelas.BordeX[i];
}

}  // namespace

double MomentoDeCargas(const Proyecto& p, double xr, double yr, long i) {
  const auto& d = p.TablaDovelas;
  const auto& u = p.CargaUniforme;
  const auto& c = p.CargaPuntual;
  const auto& g = p.GrietaTracción;
  const bool circular = p.SuperficieCircular();
  if (circular) {
    xr = p.ParámetrosIniciales.CentroX;
    yr = p.ParámetrosIniciales.CentroY;
  }
  const double b = d.Ancho[i];
  double m = 0;
  for (long k = 1; k <= p.CargasUniformesVigentes(); ++k) {
    if (!UniformeEnDovela(p, k, i)) continue;
    if (circular)
      m -= b * u.qx.Leer(k) * d.PendienteTalud[i] * (yr - d.YTalud[i]);
    else
      m += b * u.qx.Leer(k) * d.PendienteTalud[i] * (d.YTalud[i] - yr);
  }
  for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
    if (UniformeEnDovela(p, k, i)) m += b * u.qy.Leer(k) * (d.XMedio[i] - xr);
  for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k) {
    if (!PuntualEnDovela(p, k, i)) continue;
    const double xp = c.Xpuntual.Leer(k), yp = c.Ypuntual.Leer(k);
    if (circular)
      m += (xp - xr) * c.Py.Leer(k) - (yr - yp) * c.Px.Leer(k);
    else
      m += (xp - xr) * c.Py.Leer(k) + (yp - yr) * c.Px.Leer(k);
  }
  // The water in the crack, added with every slice.
  m += (yr - (g.OrdenadaSegundoPunto + (g.OrdenadaNF - g.OrdenadaSegundoPunto) / 3)) * g.EmpujeGrieta;
  return m;
}

void MétodoFellenius(Proyecto& p, Interfaz& ui) {
  if (!PuertasIniciales(p, ui)) return;
  const auto& pi = p.ParámetrosIniciales;
  if (p.TipoDeMaterial == "R") {
    ui.Mensaje("Ud. ha considerado el material como una 'ROCA'", "No es SUELO:");
    return;
  }
  if (pi.MétodoDeCálculo == 1 || pi.MétodoDeCálculo == 2 || pi.MétodoDeCálculo == 4) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  if (!PuertaRecalcular(p, ui)) return;
  PrepararDovelas(p, ui);
  const long nd = NúmeroDeDovelas(p);
  if (nd < 1) {
    AvisoSinDovelas(ui);
    return;
  }

  LimpiarExcepcionesFlotantes();
  const auto& d = p.TablaDovelas;
  const auto& t = p.Trabajo;
  const auto& g = p.GrietaTracción;
  const double kh = pi.CoeficienteSísmicoHorizontal, kv = pi.CoeficienteSísmicoVertical;
  const double xr = (t.XMáximaFalla + t.XMínimaFalla) / 2;
  const double yr = 1.5 * t.YPrimerPuntoFalla;
  const bool circular = p.SuperficieCircular();

  // Everything is worked out first and stored only when the factor of safety stands.
  std::vector<double> alfa(static_cast<std::size_t>(nd) + 1), normal(alfa.size());
  for (long i = 1; i <= nd; ++i) {
    double a;
    if (circular) {
      const double s = Div(d.XMedio[i] - pi.CentroX, pi.Radio, "el ángulo de la base");
      a = std::atan(Div(s, Raíz(1 - s * s, "el ángulo de la base"), "el ángulo de la base"));
    } else {
      a = std::atan(d.PendienteBase[i]);
    }
    if (t.YPrimerPuntoFalla < t.YÚltimoPuntoFalla) a = std::fabs(a);
    alfa[static_cast<std::size_t>(i)] = a;
  }

  double resistente = 0, motor = 0;
  for (long i = 1; i <= nd; ++i) {
    const double a = alfa[static_cast<std::size_t>(i)];
    const double b = d.Ancho[i], h = d.YTalud[i] - d.YBase[i], u = d.PresiónPoros[i];
    const double c = d.CohesiónBase[i], tf = d.TanFricciónBase[i];
    const double l = Div(b, std::cos(a), "la longitud de la base");
    const double w = h * d.PesoUnitarioMedio[i] * b + d.AlturaAguaSobreTalud[i] * b;
    double n = (1 + kv) * w * std::cos(a) - w * kh * std::sin(a);
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (UniformeEnDovela(p, k, i)) n += b * p.CargaUniforme.qx.Leer(k) * d.PendienteTalud[i] * std::sin(a);
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (PuntualEnDovela(p, k, i)) n -= std::sin(a) * p.CargaPuntual.Px.Leer(k);
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (UniformeEnDovela(p, k, i)) n += b * p.CargaUniforme.qy.Leer(k) * std::cos(a);
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (PuntualEnDovela(p, k, i)) n += std::cos(a) * p.CargaPuntual.Py.Leer(k);
    normal[static_cast<std::size_t>(i)] = n;

    const double r = (n - u * l) * tf + c * l;
    double dm;
    if (circular) {
      // On the arc the resisting side gathers forces and the driving side moments about the
      // centre; the arm of the seismic force keeps the height subtracted from twice the centre
      // ordinate.
      resistente += r;
      dm = (2 * pi.CentroY - h) * (kh * 0.5 * w) + (1 + kv) * w * pi.Radio * std::sin(a);
    } else {
      resistente += r * std::sin(a) * (d.XMedio[i] - xr) - r * std::cos(a) * (d.YBase[i] - yr);
      dm = (d.XMedio[i] - xr) * (1 + kv) * w - (d.YTalud[i] + d.YBase[i] - 2 * yr) * (kh * 0.5 * w) -
           ((d.YBase[i] - yr) * std::sin(a) + (d.XMedio[i] - xr) * std::cos(a)) * n;
    }
    dm += MomentoDeCargas(p, xr, yr, i);
    motor += dm;
  }

  // The water in the crack on the resisting side, through the first slice.
  const double a1 = alfa[1], t1 = d.TanFricciónBase[1], eg = g.EmpujeGrieta;
  if (circular) {
    resistente -= eg * std::sin(a1) * t1;
  } else {
    resistente += -eg * std::sin(a1) * t1 * std::sin(a1) * (g.AbscisaSegundoPunto - xr) +
                  eg * std::sin(a1) * t1 * std::cos(a1) *
                      ((g.OrdenadaSegundoPunto + (g.OrdenadaNF - g.OrdenadaSegundoPunto) / 3) - yr);
  }
  const double fs = Finito(Div(resistente, motor, "el factor de seguridad"), "el factor de seguridad");

  std::vector<double> sigma(alfa.size()), tau(alfa.size());
  double sumaT = 0, sumaN = 0, sumaE = 0;
  for (long i = 1; i <= nd; ++i) {
    const auto k = static_cast<std::size_t>(i);
    sigma[k] = Div(std::cos(alfa[k]) * normal[k], d.Ancho[i], "el esfuerzo normal");
    tau[k] = Div((sigma[k] - d.PresiónPoros[i]) * d.TanFricciónBase[i] + d.CohesiónBase[i], fs,
                 "el esfuerzo tangencial");
    sumaT += tau[k];
    sumaN += sigma[k];
    sumaE += sigma[k] - d.PresiónPoros[i];
  }
  Finito(sumaT + sumaN + sumaE, "los esfuerzos en la base");
  ComprobarExcepcionesFlotantes("el método de Fellenius");

  // The results, all at once.
  auto& dd = p.TablaDovelas;
  for (Tabla<double>* c : {&dd.ÁnguloBase, &dd.FuerzaNormal, &dd.EsfuerzoTangencial, &dd.EsfuerzoNormalTotal,
                           &dd.EsfuerzoNormalEfectivo})
    if (c->Tamaño() < nd) c->RedimensionarConservando(nd);
  for (long i = 1; i <= nd; ++i) {
    const auto k = static_cast<std::size_t>(i);
    dd.ÁnguloBase[i] = alfa[k];
    dd.FuerzaNormal[i] = normal[k];
    dd.EsfuerzoNormalTotal[i] = sigma[k];
    dd.EsfuerzoTangencial[i] = tau[k];
    dd.EsfuerzoNormalEfectivo[i] = sigma[k] - d.PresiónPoros[i];
  }
  p.NúmeroIteraciones = 1;
  p.HistoriaIteraciones.RedimensionarConservando(1);
  p.HistoriaIteraciones.FactorDeSeguridad[1] = fs;
  p.SumaTangenciales = sumaT;
  p.SumaNormalesTotales = sumaN;
  p.SumaNormalesEfectivos = sumaE;
  ui.Mensaje("Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Fellenius para suelos.");
}

}  // namespace lomaterra
