#include "equilibrio/referencia.h"

#include <cmath>
#include <exception>
#include <vector>

#include "equilibrio/bishop.h"
#include "equilibrio/dovelas.h"
#include "proyecto/compat.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kRótuloFelleniusReferencia = "Fellenius (momentos respecto del centro)";
const char* const kRótuloBishopReferencia = "Bishop simplificado (momentos respecto del centro)";

namespace {

constexpr int kPasadasReferencia = 500;
constexpr double kToleranciaReferencia = 1e-6;

// What the two figures share of each slice.
struct DovelaReferencia {
  double alfa = 0, W = 0, b = 0, u = 0, c = 0, t = 0;
  double normalFellenius = 0;  // N of the ordinary method, loads included
  double cargasVerticales = 0; // qy·b and Py over the slice, for Bishop's N
  double motorFellenius = 0, motorBishop = 0;  // driving moments, loads and crack included
};

bool ColumnasCompletas(const Proyecto& p, long n) {
  const auto& d = p.TablaDovelas;
  for (const Tabla<double>* c : {&d.XMedio, &d.Ancho, &d.YTalud, &d.YBase, &d.PesoUnitarioMedio,
                                 &d.CohesiónBase, &d.TanFricciónBase})
    if (c->Tamaño() < n) return false;
  return true;
}

}  // namespace

namespace {

FactoresReferencia Calcular(const Proyecto& p) {
  FactoresReferencia f;
  if (!p.SuperficieCircular()) {
    f.motivo = "Sin cifras de referencia: la superficie de falla no es un único arco circular "
               "(un tramo \"C\").";
    return f;
  }
  if (p.TipoDeMaterial == "R" && !p.ParámetrosIniciales.UsaParámetrosInstantáneos) {
    f.motivo = "Sin cifras de referencia: en roca, sin parámetros instantáneos, las bases no "
               "tienen cohesión ni fricción de Mohr-Coulomb.";
    return f;
  }
  const long n = p.NúmeroBordes > 1 ? p.NúmeroBordes - 1 : 0;
  if (n < 1 || !ColumnasCompletas(p, n)) {
    f.motivo = "Sin cifras de referencia: no están en memoria las dovelas de un cálculo.";
    return f;
  }
  const auto& pi = p.ParámetrosIniciales;
  const auto& d = p.TablaDovelas;
  const double R = pi.Radio, yc = pi.CentroY;
  if (!(R > 0)) {
    f.motivo = "Sin cifras de referencia: el radio del arco no es positivo.";
    return f;
  }
  const double kh = pi.CoeficienteSísmicoHorizontal, kv = pi.CoeficienteSísmicoVertical;
  const bool absoluto = p.Trabajo.YPrimerPuntoFalla < p.Trabajo.YÚltimoPuntoFalla;

  std::vector<DovelaReferencia> s(static_cast<std::size_t>(n) + 1);
  for (long i = 1; i <= n; ++i) {
    DovelaReferencia& v = s[static_cast<std::size_t>(i)];
    const double seno = (d.XMedio[i] - pi.CentroX) / R;
    if (!(std::fabs(seno) < 1)) {
      f.motivo = "Sin cifras de referencia: la dovela " + std::to_string(i) +
                 " queda fuera del alcance horizontal del arco.";
      return f;
    }
    double a = std::atan(seno / std::sqrt(1 - seno * seno));
    if (absoluto) a = std::fabs(a);
    const double sa = std::sin(a), ca = std::cos(a);
    const double b = d.Ancho[i], h = d.YTalud[i] - d.YBase[i];
    v.alfa = a;
    v.b = b;
    v.u = d.PresiónPoros.Leer(i);
    v.c = d.CohesiónBase[i];
    v.t = d.TanFricciónBase[i];
    v.W = h * d.PesoUnitarioMedio[i] * b + d.AlturaAguaSobreTalud.Leer(i) * b;
    double N = (1 + kv) * v.W * ca - v.W * kh * sa;
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k) {
      if (!CargaUniformeSobreDovela(p, k, i)) continue;
      N += b * p.CargaUniforme.qx.Leer(k) * d.PendienteTalud.Leer(i) * sa;
      N += b * p.CargaUniforme.qy.Leer(k) * ca;
      v.cargasVerticales += p.CargaUniforme.qy.Leer(k) * b;
    }
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k) {
      if (!CargaPuntualEnDovela(p, k, i)) continue;
      N += ca * p.CargaPuntual.Py.Leer(k) - sa * p.CargaPuntual.Px.Leer(k);
      v.cargasVerticales += p.CargaPuntual.Py.Leer(k);
    }
    v.normalFellenius = N;
    const double cargas = MomentoDeCargas(p, 0, 0, i);
    v.motorFellenius = (2 * yc - h) * (kh * 0.5 * v.W) + (1 + kv) * v.W * R * sa + cargas;
    const bool aguaEncima = d.YFreático.Leer(i) > d.YTalud[i] && !p.DesembalseRápido;
    const double H = aguaEncima ? d.YFreático.Leer(i) - d.YBase[i] : h;
    v.motorBishop = (2 * R * ca - H) * (kh * 0.5 * v.W) + (1 + kv) * v.W * R * sa + cargas;
  }

  double resistente = 0, motorF = 0, motorB = 0;
  for (long i = 1; i <= n; ++i) {
    const DovelaReferencia& v = s[static_cast<std::size_t>(i)];
    const double l = v.b / std::cos(v.alfa);
    resistente += (v.normalFellenius - v.u * l) * v.t + v.c * l;
    motorF += v.motorFellenius;
    motorB += v.motorBishop;
  }
  resistente -= p.GrietaTracción.EmpujeGrieta * std::sin(s[1].alfa) * s[1].t;
  if (!(motorF > 0) || !std::isfinite(resistente)) {
    f.motivo = "Sin cifras de referencia: el momento motor de las dovelas respecto del centro no "
               "es positivo.";
    return f;
  }
  f.hay = true;
  f.fellenius = R * resistente / motorF;

  // Bishop: N from the vertical balance of each slice, both sums about the centre.
  if (!(motorB > 0)) {
    f.motivoBishop = "el momento motor no es positivo";
    return f;
  }
  double F = 1.0;
  for (int pasada = 1; pasada <= kPasadasReferencia; ++pasada) {
    double suma = 0;
    long malas = 0;
    for (long i = 1; i <= n; ++i) {
      const DovelaReferencia& v = s[static_cast<std::size_t>(i)];
      const double sa = std::sin(v.alfa), ca = std::cos(v.alfa);
      const double m = ca + sa * v.t / F;
      if (!(m > 0)) {
        ++malas;
        break;
      }
      const double N =
          ((1 + kv) * v.W + v.cargasVerticales + (v.t * v.u - v.c) * std::tan(v.alfa) * v.b / F) / m;
      const double l = v.b / ca;
      suma += (N - v.u * l) * v.t + v.c * l;
    }
    const double nuevo = R * suma / motorB;
    if (malas > 0 || !std::isfinite(nuevo) || !(nuevo > 0)) {
      f.motivoBishop = malas > 0 ? "en alguna dovela mα se anula o cambia de signo"
                                 : "la iteración dejó un factor que no es positivo";
      return f;
    }
    const bool fin = std::fabs(nuevo - F) < kToleranciaReferencia;
    F = nuevo;
    if (fin) {
      f.hayBishop = true;
      f.bishop = F;
      f.pasadasBishop = pasada;
      break;
    }
  }
  if (!f.hayBishop) {
    f.motivoBishop = "la iteración no convergió en " + std::to_string(kPasadasReferencia) + " pasadas";
    return f;
  }
  for (long i = 1; i <= n; ++i) {
    const DovelaReferencia& v = s[static_cast<std::size_t>(i)];
    if (std::cos(v.alfa) + std::sin(v.alfa) * v.t / F <= 0.2) f.dovelasMαBajo.push_back(i);
  }
  if (!f.dovelasMαBajo.empty()) {
    std::string lista;
    for (std::size_t k = 0; k < f.dovelasMαBajo.size() && k < 12; ++k)
      lista += (k ? ", " : "") + std::to_string(f.dovelasMαBajo[k]);
    if (f.dovelasMαBajo.size() > 12) lista += ", ...";
    f.notaBishop = "Nota: mα ≤ 0.2 en " +
                   std::string(f.dovelasMαBajo.size() == 1 ? "la dovela " : "las dovelas ") + lista +
                   "; la cifra de Bishop pierde exactitud con bases tan inclinadas.";
  }
  return f;
}

}  // namespace

FactoresReferencia FactoresDeReferencia(const Proyecto& p) {
  try {
    return Calcular(p);
  } catch (const std::exception&) {
    FactoresReferencia f;
    f.motivo = "Sin cifras de referencia: las dovelas en memoria están incompletas.";
    return f;
  }
}

std::vector<std::string> LíneasDeReferencia(const FactoresReferencia& f) {
  if (!f.hay) return {f.motivo};
  std::vector<std::string> r;
  r.push_back(std::string(kRótuloFelleniusReferencia) + ": " + Formato(f.fellenius, "#0.000"));
  if (f.hayBishop) {
    r.push_back(std::string(kRótuloBishopReferencia) + ": " + Formato(f.bishop, "#0.000"));
    if (!f.notaBishop.empty()) r.push_back(f.notaBishop);
  } else {
    r.push_back(std::string(kRótuloBishopReferencia) + ": sin valor (" + f.motivoBishop + ").");
  }
  return r;
}

}  // namespace lomaterra
