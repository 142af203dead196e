#include "equilibrio/janbu.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "equilibrio/instantaneos.h"
#include "equilibrio/puertas.h"
#include "equilibrio/form17.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {


void AgregarFactor(Proyecto& p, double fs) {
  ++p.NúmeroIteraciones;
  p.HistoriaIteraciones.RedimensionarConservando(p.NúmeroIteraciones);
  p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones] = fs;
}

double ÚltimoFactor(const Proyecto& p) {
  return p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
}

// The working columns of one run, per slice, one-based.
struct ColumnasJanbu {
  std::vector<double> alfa, W, A, A0, D, D0, na, dE, E, T, dT;
  explicit ColumnasJanbu(long n)
      : alfa(n + 1),
        W(n + 1),
        A(n + 1),
        A0(n + 1),
        D(n + 1),
        D0(n + 1),
        na(n + 1),
        dE(n + 1),
        E(n + 1),
        T(n + 1),
        dT(n + 1) {}
};

}  // namespace

void MétodoJanbu(Proyecto& p, Interfaz& ui) {
  MétodoJanbuConLímite(p, ui, kLímitePasadas);
}

void MétodoJanbuConLímite(Proyecto& p, Interfaz& ui, int límitePasadas) {
  auto& pi = p.ParámetrosIniciales;
  if (!PuertasIniciales(p, ui)) return;
  p.AceptaSolución = false;
  p.SaleDelCálculo = false;
  if (!PuertaRecalcular(p, ui)) return;
  if (pi.MétodoDeCálculo == 1 || pi.MétodoDeCálculo == 2 || pi.MétodoDeCálculo == 3) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  if (!PuertaGrieta(p, ui)) return;
  if (Mayúsculas(p.TipoDeMaterial) == "R" && !pi.UsaParámetrosInstantáneos) {
    ui.Mensaje("Ud. ha considerado el material como una 'ROCA'", "No es SUELO:");
    return;
  }
  if (!PuertaParámetrosInstantáneos(p, ui)) return;

  PasePrevioInstantáneo(p);
  IteraciónJanbu(p, ui, límitePasadas, false);
}

void IteraciónJanbu(Proyecto& p, Interfaz& ui, int límitePasadas, bool roca) {
  auto& pi = p.ParámetrosIniciales;
  const TablaHistoria historiaPrevia = p.HistoriaIteraciones;
  const Entero iteracionesPrevias = p.NúmeroIteraciones;
  auto devolverHistoria = [&] {
    p.HistoriaIteraciones = historiaPrevia;
    p.NúmeroIteraciones = iteracionesPrevias;
  };
  p.NúmeroIteraciones = 1;
  if (roca)
    DovelasEnRoca(p, ui);
  else
    DovelasDelMétodo(p, ui);
  if (p.NúmeroBordes < 2) {
    AvisoSinDovelas(ui);
    devolverHistoria();
    return;
  }

  // Set-up.
  auto& d = p.TablaDovelas;
  const long n = p.NúmeroBordes - 1;
  const double kv = pi.CoeficienteSísmicoVertical, kh = pi.CoeficienteSísmicoHorizontal;
  const double empujeGrieta = p.GrietaTracción.EmpujeGrieta;
  p.HistoriaIteraciones.RedimensionarConservando(1);
  p.HistoriaIteraciones.FactorDeSeguridad[1] = pi.FSInicial;
  ColumnasJanbu c(n);
  for (long i = 1; i <= n; ++i) {
    c.alfa[i] = std::atan(d.PendienteBase[i]);
    if (p.Trabajo.YPrimerPuntoFalla < p.Trabajo.YÚltimoPuntoFalla) c.alfa[i] = std::fabs(c.alfa[i]);
  }
  auto hacerNa = [&](double F) {
    for (long i = 1; i <= n; ++i) {
      const double ca = std::cos(c.alfa[i]);
      c.na[i] = ca * ca *
                (1 + Div(std::tan(c.alfa[i]) * d.TanFricciónBase[i], F, "el factor de seguridad"));
    }
  };
  auto sumas = [&](double& resistente, double& motor) {
    resistente = motor = 0;
    for (long i = 1; i <= n; ++i) {
      motor += c.D[i];
      resistente += Div(c.A[i], c.na[i], "el término n-alfa de una dovela");
    }
  };
  auto factor = [&](double resistente, double motor) {
    return Finito(Div(resistente, empujeGrieta + motor, "el factor de seguridad"),
                  "el factor de seguridad");
  };

  // First forces, with no shear between slices.
  for (long i = 1; i <= n; ++i) {
    const double b = d.Ancho[i], h = d.YTalud[i] - d.YBase[i], u = d.PresiónPoros[i];
    c.W[i] = roca ? PesoDovelaEnRoca(p, i)
                  : h * d.PesoUnitarioMedio[i] * b + d.AlturaAguaSobreTalud[i] * b;
    double V = c.dT[i] + c.W[i] + kv * c.W[i];
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (CargaUniformeSobreDovela(p, k, i)) V += b * p.CargaUniforme.qy[k];
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (CargaPuntualEnDovela(p, k, i)) V += p.CargaPuntual.Py[k];
    c.A[i] = c.A0[i] = (V - u * b) * d.TanFricciónBase[i] + d.CohesiónBase[i] * b;
    double D = std::tan(c.alfa[i]) * V + kh * c.W[i];
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (CargaUniformeSobreDovela(p, k, i)) D -= b * p.CargaUniforme.qx[k] * d.PendienteTalud[i];
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (CargaPuntualEnDovela(p, k, i)) D -= p.CargaPuntual.Px[k];
    c.D[i] = c.D0[i] = D;
  }
  hacerNa(ÚltimoFactor(p));

  // The factor at zero interslice shear.
  {
    double F = ÚltimoFactor(p);
    bool asentado = false;
    for (int pasada = 1; pasada <= límitePasadas && !asentado; ++pasada) {
      double resistente, motor;
      sumas(resistente, motor);
      const double nuevo = factor(resistente, motor);
      AgregarFactor(p, nuevo);
      hacerNa(nuevo);
      asentado = std::fabs(nuevo - F) <= 0.001;
      F = nuevo;
    }
    if (!asentado) {
      devolverHistoria();
      AvisoSinConvergencia(ui, "Janbu", F, límitePasadas);
      return;
    }
  }

  // Heights of the lateral force: a third of each edge, written one row back, unless the user
  // keeps those of the run before.
  auto& ht = d.AlturaEmpuje;
  bool alturasDelPrograma = true;
  if (p.CálculoHecho && p.JanbuCalculado)
    alturasDelPrograma = ui.Pregunta(
        "Desea que sea el programa el que fije la altura de aplicación de las fuerzas laterales?");
  if (alturasDelPrograma) {
    ht.Redimensionar(p.NúmeroBordes);
    for (long i = 2; i <= p.NúmeroBordes; ++i)
      ht[i - 1] = (d.BordeYTalud[i] - d.BordeYFalla[i]) / 3;
  } else {
    ht.RedimensionarConservando(std::max<long>(p.NúmeroBordes, ht.Tamaño()));
  }

  // The iteration on the interslice forces.
  auto& inclinación = p.InclinaciónEmpuje;
  inclinación.Redimensionar(n - 1);
  Form17 pantalla(p);
  bool terminada = false;
  double último = ÚltimoFactor(p);
  for (int pasada = 1; pasada <= límitePasadas && !terminada; ++pasada) {
    const double F = ÚltimoFactor(p);
    for (long i = 1; i <= n - 1; ++i)
      inclinación[i] = std::atan(Div(std::tan(c.alfa[i + 1]) * d.Ancho[i + 1] + ht[i] - ht[i + 1],
                                     d.Ancho[i + 1], "la inclinación de la línea de empuje"));
    for (long i = 1; i <= n; ++i) {
      c.dE[i] = c.D[i] - Div(c.A[i], F * c.na[i], "el empuje de una dovela");
      c.E[i] = c.dE[i] + (i > 1 ? c.E[i - 1] : 0.0);
    }
    std::fill(c.T.begin(), c.T.end(), 0.0);
    for (long i = 1; i <= n - 1; ++i) {
      const long j = i + 1;
      const double bi = d.Ancho[i], bj = d.Ancho[j];
      double T = -std::tan(inclinación[i]) * c.E[i] +
                 Div(c.dE[j] + c.dE[i], bj + bi, "el cortante entre dovelas") * ht[i];
      T -= Div((d.YTalud[i] - d.YBase[i]) * (kh * 0.5 * c.W[i]), bi + bi,
               "el cortante entre dovelas");
      T -= Div((d.YTalud[j] - d.YBase[j]) * (kh * 0.5 * c.W[j]), bj + bj,
               "el cortante entre dovelas");
      double S = 0;
      for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k) {
        const auto& q = p.CargaPuntual;
        if (CargaPuntualEnDovela(p, k, i))
          S += Div((q.Xpuntual[k] - d.XMedio[i]) * (q.Py[k] * 0.5), bi);
        if (CargaPuntualEnDovela(p, k, j))
          S += Div((q.Xpuntual[k] - d.XMedio[j]) * (q.Py[k] * 0.5), bj);
      }
      for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k) {
        const auto& q = p.CargaPuntual;
        if (CargaPuntualEnDovela(p, k, i))
          S += Div((q.Ypuntual[k] - d.YBase[i]) * (q.Px[k] * 0.5), bi);
        if (CargaPuntualEnDovela(p, k, j))
          S += Div((q.Ypuntual[k] - d.YBase[j]) * (q.Px[k] * 0.5), bj);
      }
      for (long k = 1; k <= p.CargasUniformesVigentes(); ++k) {
        const double qx = p.CargaUniforme.qx[k];
        if (CargaUniformeSobreDovela(p, k, i))
          S += qx * 0.5 * d.PendienteTalud[i] * (d.YTalud[i] - d.YBase[i]);
        if (CargaUniformeSobreDovela(p, k, j))
          S += qx * 0.5 * d.PendienteTalud[j] * (d.YTalud[j] - d.YBase[j]);
      }
      c.T[i] = S + T;
    }
    // With one slice there is no inner edge: its difference reads the empty row 0.
    c.dT[1] = c.T[1];
    for (long i = 2; i < n; ++i) c.dT[i] = c.T[i] - c.T[i - 1];
    c.dT[n] = -c.T[n - 1];
    for (long i = 1; i <= n; ++i) {
      c.D[i] = std::tan(c.alfa[i]) * c.dT[i] + c.D0[i];
      c.A[i] = c.dT[i] * d.TanFricciónBase[i] + c.A0[i];
    }
    hacerNa(F);
    double resistente, motor;
    sumas(resistente, motor);
    const double nuevo = factor(resistente, motor);
    AgregarFactor(p, nuevo);
    último = nuevo;

    ui.Abrir(pantalla);
    if (p.SaleDelCálculo) {
      inclinación.Borrar();
      return;
    }
    terminada = p.AceptaSolución || std::fabs(nuevo - F) <= 0.001;
  }
  inclinación.Borrar();
  if (!terminada) {
    devolverHistoria();
    AvisoSinConvergencia(ui, "Janbu", último, límitePasadas);
    return;
  }

  // Stresses at the bases.
  const double F = ÚltimoFactor(p);
  d.ÁnguloBase.Redimensionar(n);
  d.FuerzaNormal.Redimensionar(n);
  d.EsfuerzoTangencial.Redimensionar(n);
  d.EsfuerzoNormalTotal.Redimensionar(n);
  d.EsfuerzoNormalEfectivo.Redimensionar(n);
  p.SumaTangenciales = p.SumaNormalesTotales = p.SumaNormalesEfectivos = 0;
  for (long i = 1; i <= n; ++i) {
    const double b = d.Ancho[i], u = d.PresiónPoros[i], a = c.alfa[i], ca = std::cos(a);
    // The vertical seismic force enters here with the sign opposite to the first forces.
    double Vf = c.W[i] + c.dT[i] - kv * c.W[i];
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (CargaPuntualEnDovela(p, k, i)) Vf += p.CargaPuntual.Py[k];
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (CargaUniformeSobreDovela(p, k, i)) Vf += b * p.CargaUniforme.qy[k];
    const double tau = Div(ca * ca * c.A[i], F * c.na[i] * b, "el esfuerzo tangencial");
    const double sigma = Div(Vf, b, "el esfuerzo normal") - std::tan(a) * tau;
    d.ÁnguloBase[i] = a;
    d.FuerzaNormal[i] = sigma * b / ca;
    d.EsfuerzoTangencial[i] = tau;
    d.EsfuerzoNormalTotal[i] = sigma;
    d.EsfuerzoNormalEfectivo[i] = sigma - u;
    p.SumaTangenciales += tau;
    p.SumaNormalesTotales += sigma;
    p.SumaNormalesEfectivos += sigma - u;
  }
  p.CálculoHecho = true;
  p.JanbuCalculado = true;
  if (roca)
    ui.Mensaje(
        "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu para "
        "Rocas.");
  else
    ui.Mensaje(
        "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu para "
        "suelos.");
}

}  // namespace lomaterra
