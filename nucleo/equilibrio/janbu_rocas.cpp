#include <cmath>

#include "equilibrio/janbu.h"
#include "equilibrio/puertas.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

void EstratosDeRocaParaJanbu(Proyecto& p) {
  auto& e = p.Estrato;
  const long n = p.NúmeroEstratos;
  std::vector<double> c(static_cast<std::size_t>(n + 1)), f(static_cast<std::size_t>(n + 1));
  for (long s = 1; s <= n; ++s) {
    const double mi = e.m_intacta.Leer(s), G = e.Parámetro_GSI.Leer(s), σc = e.C_Simple.Leer(s);
    const std::string estrato = "el estrato " + std::to_string(s) + " (mi debe ser mayor que cero)";
    const double lnmi = Ln(mi, estrato.c_str());
    c[static_cast<std::size_t>(s)] =
        Finito((0.0058 + 0.0004 * mi) * σc * std::exp((0.0455 - 0.0073 * lnmi) * G),
               "la cohesión del estrato");
    const double φ = 0.424 * G - 0.0016 * G * G - 6.0 + 16.0 * lnmi;
    f[static_cast<std::size_t>(s)] = φ > 0 ? φ : 0;
  }
  e.RedimensionarConservando(std::max<long>(n, e.Cohesión.Tamaño()));
  for (long s = 1; s <= n; ++s) {
    e.Cohesión[s] = c[static_cast<std::size_t>(s)];
    e.Fricción[s] = f[static_cast<std::size_t>(s)];
  }
}

void DovelasEnRoca(Proyecto& p, Interfaz& ui) {
  PrepararDovelas(p, ui);
  auto& d = p.TablaDovelas;
  const long n = p.NúmeroBordes - 1;
  const double π = 4 * std::atan(1.0);
  d.TanFricciónBase.RedimensionarConservando(std::max<long>(n, d.TanFricciónBase.Tamaño()));
  for (long i = 1; i <= n; ++i) d.TanFricciónBase[i] = std::tan(π * d.FricciónBase[i] / 180);
}

double PesoDovelaEnRoca(const Proyecto& p, long i) {
  const auto& d = p.TablaDovelas;
  double h = d.YTalud[i] - d.YBase[i];
  if (d.YFreático[i] == d.YTalud[i] && p.DesembalseRápido) h = d.YEstrato.Leer(1, i) - d.YBase[i];
  return h * d.PesoUnitarioMedio[i] * d.Ancho[i];
}

void MétodoJanbuEnRocas(Proyecto& p, Interfaz& ui) {
  MétodoJanbuEnRocasConLímite(p, ui, kLímitePasadas);
}

void MétodoJanbuEnRocasConLímite(Proyecto& p, Interfaz& ui, int límitePasadas) {
  auto& pi = p.ParámetrosIniciales;
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (!p.ParámetrosInicialesDados) {
    ui.Mensaje("Faltan los parámetros iniciales de cálculo. Vaya a la opción Equilibrio límite.",
               "Parámetros iniciales:");
    return;
  }
  ui.Mensaje("Ud. va aplicar el método de Janbu para analizar el talud en  'ROCA'", "No es SUELO:");
  if (Mayúsculas(p.TipoDeMaterial) == "S") {
    ui.Mensaje("Ud. ha considerado el material como un 'SUELO'", "No es ROCA:");
    return;
  }
  if (Mayúsculas(Recortar(pi.LetraUsaParámetrosInstantáneos)) == "S") {
    ui.Mensaje("Ud. está calculando por el método de parámetros instantáneos", "No es el METODO:");
    return;
  }
  p.AceptaSolución = false;
  p.SaleDelCálculo = false;
  p.DesembalseRápido = ui.Pregunta(kPreguntaDesembalse);
  if (!PuertaRecalcular(p, ui)) return;
  if (pi.MétodoDeCálculo == 1 || pi.MétodoDeCálculo == 2 || pi.MétodoDeCálculo == 3) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  if (!PuertaGrieta(p, ui)) return;
  EstratosDeRocaParaJanbu(p);
  IteraciónJanbu(p, ui, límitePasadas, true);
}

}  // namespace lomaterra
