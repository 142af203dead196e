#include "salida/diseno_anclajes.h"

#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/resumen.h"

namespace lomaterra {

namespace {
const double kPi = 4 * std::atan(1.0);
const double kGrado = kPi / 180.0;
}  // namespace

CálculoAnclajes CalcularAnclajes(const Proyecto& p, const DatosAnclajes& a) {
  CálculoAnclajes r;
  if (!HayResultados(p)) {
    r.error = "No hay resultados de un cálculo por equilibrio límite.";
    return r;
  }
  const long n = NúmeroDeDovelas(p);
  const auto& d = p.TablaDovelas;
  const BordesDeDovelas b = Bordes(p);
  double D = 0, largo = 0, sumaTan = 0;
  for (long i = 1; i <= n; ++i) {
    const double l = LongitudBase(b, i);
    D += d.EsfuerzoTangencial.Leer(i) * l;
    largo += l;
    sumaTan += l * std::tan(d.FricciónBase.Leer(i) * kGrado);
  }
  const double F = FactorDeSeguridadFinal(p);
  r.FactorActual = F;
  r.FuerzaMovilizada = D;
  r.ResistenciaDisponible = F * D;
  r.TanFricciónMedia = largo > 0 ? sumaTan / largo : 0;
  const auto u = static_cast<std::size_t>(n + 1);
  const double dx = b.x[1] - b.x[u], dy = b.yFalla[1] - b.yFalla[u];
  const double psi = std::atan2(dy, dx);
  r.InclinaciónFalla = psi / kGrado;
  auto paso = [&](const std::string& t, double v, const char* formato = "#0.000") {
    r.pasos.push_back({t, Formato(v, formato)});
  };
  paso("Factor de seguridad del cálculo F", F);
  paso("Fuerza tangencial movilizada D = Σ τ·l (ton/m)", D);
  paso("Resistencia disponible R = F·D (ton/m)", r.ResistenciaDisponible);
  paso("Inclinación de la cuerda de la superficie de falla ψ (°)", r.InclinaciónFalla, "#0.00");
  paso("Fricción media de las bases tan φm", r.TanFricciónMedia, "#0.0000");
  if (!(D > 0) || !std::isfinite(D)) {
    r.error =
        "La fuerza tangencial movilizada del cálculo no es positiva: no hay deslizamiento que "
        "anclar.";
    return r;
  }
  if (!(a.FSConAnclaje > F)) {
    r.error = "El factor de seguridad del cálculo (" + Formato(F, "#0.000") +
              ") ya alcanza el factor buscado: no se necesitan anclajes.";
    return r;
  }
  const double ángulo = psi + a.InclinaciónAnclajes * kGrado;
  const double c = std::cos(ángulo), s = std::sin(ángulo);
  paso("Ángulo entre el anclaje y la superficie ψ + θ (°)", ángulo / kGrado, "#0.00");
  const double falta = a.FSConAnclaje * D - r.ResistenciaDisponible;
  paso("F'·D − R (ton/m)", falta);
  const double divActivo = a.FSConAnclaje * c + s * r.TanFricciónMedia;
  const double divPasivo = c + s * r.TanFricciónMedia;
  if (!(divActivo > 1e-9) || !(divPasivo > 1e-9)) {
    r.error =
        "Con esa inclinación los anclajes no aumentan el factor de seguridad: pruebe una "
        "inclinación menor.";
    return r;
  }
  r.FuerzaActivo = falta / divActivo;
  r.FuerzaPasivo = falta / divPasivo;
  paso("Fuerza de anclaje activo T = (F'·D − R) / (F'·cos(ψ+θ) + sen(ψ+θ)·tan φm) (ton/m)",
       r.FuerzaActivo);
  paso("Fuerza de anclaje pasivo T = (F'·D − R) / (cos(ψ+θ) + sen(ψ+θ)·tan φm) (ton/m)",
       r.FuerzaPasivo);
  const double área = kPi * std::pow(a.DiámetroAnclajes / 10.0, 2) / 4.0;  // cm2
  r.CargaPorAnclaje =
      kFracciónCargaDeDiseño * a.NúmeroGuayas * área * a.EsfuerzoRoturaAnclaje / 1000.0;
  paso("Área de una guaya π·d²/4 (cm2)", área, "#0.0000");
  paso("Carga de diseño de un anclaje P = 0.6·n·área·fpu (ton)", r.CargaPorAnclaje);
  if (!(r.CargaPorAnclaje > 0) || !std::isfinite(r.CargaPorAnclaje)) {
    r.error =
        "La carga de diseño de un anclaje no es positiva: revise el diámetro, el esfuerzo de "
        "rotura y el número de guayas.";
    return r;
  }
  r.SeparaciónActivo = r.CargaPorAnclaje / r.FuerzaActivo;
  r.SeparaciónPasivo = r.CargaPorAnclaje / r.FuerzaPasivo;
  paso("Separación de anclajes activos P / T (m)", r.SeparaciónActivo, "#0.00");
  paso("Separación de anclajes pasivos P / T (m)", r.SeparaciónPasivo, "#0.00");
  r.válido = std::isfinite(r.SeparaciónActivo) && std::isfinite(r.SeparaciónPasivo);
  if (!r.válido) r.error = "El cálculo de la separación de los anclajes no dio un número.";
  return r;
}

}  // namespace lomaterra
