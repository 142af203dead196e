#include "sismico/etapa_elementos.h"

#include <cmath>
#include <cstddef>

#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"
#include "sismico/amortiguamiento.h"
#include "sismico/frecuencias.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {

void EsfuerzosPrincipales(double sx, double sy, double sxy, double& mayor, double& menor) {
  if (sy == sx && sxy == 0) {
    mayor = sx, menor = sy;
    return;
  }
  (void)std::atan(Div(2 * sxy, sy - sx, "el ángulo de los esfuerzos principales"));
  const double c = (sx + sy) / 2, r = std::sqrt(sxy * sxy + ((sy - sx) / 2) * ((sy - sx) / 2));
  mayor = c + r, menor = c - r;
}

namespace {

// The unit weight the modulus reads: the moist one, or the submerged one when the moist is below
// the saturated.
double PesoParaGmax(const Proyecto& p, long mat) {
  const double h = p.Estrato.PesoUnitarioHúmedo.Leer(mat), s = p.Estrato.PesoUnitarioSaturado.Leer(mat);
  return h < s ? s - 1 : h;
}

}  // namespace

std::vector<ElementoRespuesta> PrepararElementosRespuesta(const Proyecto& p, const MatricesSísmicas& m) {
  const MallaElementos& malla = p.Malla;
  const DatosSísmicos& s = p.Sísmico;
  const bool suelo = p.TipoDeMaterial == "S";
  const long NE = malla.NúmeroDeElementos;
  std::vector<ElementoRespuesta> r(static_cast<std::size_t>(NE));
  double gmaxAnterior = 0;  // a soil of no case of the physical relations keeps the previous value
  for (long e = 1; e <= NE; ++e) {
    ElementoRespuesta& el = r[static_cast<std::size_t>(e - 1)];
    el.nodos = malla.Elemento.NodosPorElemento.Leer(e) == 6 ? 6 : 3;
    el.puntos = PuntosDelTriángulo(el.nodos).n;
    for (int g = 1; g <= el.puntos; ++g) {
      const auto i = static_cast<std::size_t>((e - 1) * 3 + (g - 1));
      if (i < m.MatrizB.size()) el.B[static_cast<std::size_t>(g - 1)] = m.MatrizB[i];
    }
    for (int k = 1; k <= el.nodos; ++k) {
      const long n = std::lround(malla.Elemento.NúmeroElemento.Leer(e, k));
      if (n < 1 || n > malla.NúmeroDeNodos) continue;
      el.grado[static_cast<std::size_t>(2 * k - 1)] = 2 * n - 1;
      el.grado[static_cast<std::size_t>(2 * k)] = 2 * n;
    }
    const long mat = std::lround(malla.Elemento.MaterialDeElemento.Leer(e));
    el.roca = !suelo;
    el.E = suelo ? malla.MóduloElasticidad.Leer(mat) : p.Estrato.ModuloMacizo.Leer(mat);
    el.nu = suelo ? malla.CoeficientePoisson.Leer(mat) : p.Estrato.Poisson.Leer(mat);
    el.presiónPoros = malla.PresiónPorosElemento.Leer(e);
    el.determinanteUno = s.Determinante.Leer(mat) == 1;
    const double gamma = PesoParaGmax(p, mat);
    if (!suelo) {
      const double vs = p.Estrato.VelocidadCorte.Leer(mat);
      el.GmaxRoca = p.Roca.MétodoModuloCortante == 1 ? vs * vs * gamma / 9.81 : el.E / (2 * (1 + el.nu));
      continue;
    }
    SueloDegradable& d = el.suelo;
    const double k0 = p.Estrato.CoeficienteKo.Leer(mat), sv = malla.EsfuerzoVerticalEfectivo.Leer(e);
    const double c = p.Estrato.Cohesión.Leer(mat), fricción = p.Estrato.Fricción.Leer(mat);
    const double cu = s.ResistenciaNoDrenada.Leer(mat), ocr = s.OCR.Leer(mat);
    d.ip = s.ÍndicePlástico.Leer(mat);
    d.sm = (k0 + 1) * sv / 2;
    if (s.MétodoGmax == 1) {
      const double vs = s.VelocidadOndaCorte.Leer(mat);
      gmaxAnterior = vs * vs * gamma / 9.81;
    } else if (s.MétodoGmax == 2) {
      SueloParaGmax f;
      f.e = s.RelaciónVacíos.Leer(mat), f.cu = cu, f.ip = d.ip, f.ocr = ocr, f.c = c, f.fricción = fricción;
      f.k0 = k0, f.sv = sv;
      const Gmax g = GmaxPorPropiedadesFísicas(f);
      if (g.caso) gmaxAnterior = g.valor;
    } else {
      gmaxAnterior = el.E / (2 * (1 + el.nu));
    }
    d.Gmax = gmaxAnterior;
    d.tauMáx = ResistenciaCorte(c, fricción, cu, d.sm);
    // The class with friction and cohesion only damps without the factor of Ip.
    d.conIp = !(ocr == 0 && cu == 0 && fricción > 0 && c >= 0 && d.ip == 0);
  }
  return r;
}

EstadoElemento EstadoInicial(const ElementoRespuesta& e) {
  EstadoElemento s;
  s.G = e.E / (2 * (1 + e.nu));
  s.nu = e.nu;
  s.suelo = e.suelo;
  return s;
}

ResultadoEtapa EtapaDeElemento(const ElementoRespuesta& e, EstadoElemento& estado, const std::vector<double>& u,
                               bool primero, double dt, double w) {
  double ue[13] = {};
  for (int c = 1; c <= 2 * e.nodos; ++c) {
    const long g = e.grado[static_cast<std::size_t>(c)];
    if (g > 0 && g < static_cast<long>(u.size())) ue[c] = u[static_cast<std::size_t>(g)];
  }
  const MatrizD D = MatrizConstitutiva(2 * estado.G * (1 + estado.nu), estado.nu);
  double def[4] = {}, esf[4] = {};
  for (int g = 0; g < e.puntos; ++g) {
    const PuntoB& b = e.B[static_cast<std::size_t>(g)];
    double eps[4] = {};
    for (int r = 1; r <= 3; ++r)
      for (int c = 1; c <= 2 * e.nodos; ++c) eps[r] += b.B[r][c] * ue[c];
    for (int r = 1; r <= 3; ++r) {
      def[r] += eps[r];
      for (int c = 1; c <= 3; ++c) esf[r] += D.D[r][c] * eps[c];
    }
  }
  ResultadoEtapa r;
  r.ex = def[1] / e.puntos, r.ey = def[2] / e.puntos, r.exy = def[3] / e.puntos;
  if (r.exy == 0) r.exy = 1e-6;
  r.sx = esf[1], r.sy = esf[2], r.sxy = esf[3];
  EsfuerzosPrincipales(r.sx, r.sy, r.sxy, r.mayor, r.menor);
  MóduloYAmortiguamiento m;
  if (e.roca) {
    m = MóduloRoca(e.GmaxRoca, r.sxy, r.exy, dt, w);
  } else {
    if (primero) AjustarHipérbola(estado.suelo, r.sxy);
    m = MóduloSuelo(estado.suelo, DeformaciónDelPaso(estado.suelo, r.sxy, primero));
  }
  r.G = m.G, r.z = m.z, r.razón = m.razón;
  r.nu = PoissonDelPaso(r.ex, r.ey, e.nu);
  estado.G = r.G, estado.nu = r.nu, estado.razón = r.razón;
  return r;
}

}  // namespace lomaterra
