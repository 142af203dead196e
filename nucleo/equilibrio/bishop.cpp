#include "equilibrio/bishop.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "equilibrio/dovelas.h"
#include "equilibrio/instantaneos.h"
#include "equilibrio/puertas.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kTítuloSinConvergencia = "Sin convergencia:";

namespace {

const double kPi = 4.0 * std::atan(1.0);

const char* const kGuardaEsfuerzoEfectivo =
    "Existe alguna dovela donde el esfuerzo efectivo se hace cero o menor que cero. Problamente "
    "las "
    "presiones de poros son elevadas en esa dovela.  Puede reajustar las presiones de poros en el "
    "menú "
    "Equilibrio Límite en la opción 'Cambio de parámetros de resistencia' o  aplique otro método y "
    "compare resultados. Si desea que el programa continúe  y no ver más este mensaje para otra "
    "dovela "
    "presione <SI> y Si desea salir del cálculo  presione <NO> .?";
const char* const kGuardaÁngulos =
    "Alguna dovela no cumple con ciertas condiciones de angulos o dimensiones. Cambie las "
    "dimensiones "
    "de las dovelas o geometría de la SPF, y si aún con este cambio no se obtiene el chequeo, "
    "entonces "
    "abandone el análisis por este método. Si desea que el programa continúe  y no ver más este "
    "mensaje para otra dovela presione <SI> y Si desea salir del cálculo  presione <NO> .?";


// The history of factors as it stood before a run, put back when the run leaves without a result.
struct HistoriaGuardada {
  TablaHistoria tabla;
  Entero número;
  explicit HistoriaGuardada(const Proyecto& p)
      : tabla(p.HistoriaIteraciones), número(p.NúmeroIteraciones) {}
  void Devolver(Proyecto& p) const {
    p.HistoriaIteraciones = tabla;
    p.NúmeroIteraciones = número;
  }
};

void AgregarFactorAHistoria(Proyecto& p, double fs) {
  ++p.NúmeroIteraciones;
  p.HistoriaIteraciones.RedimensionarConservando(p.NúmeroIteraciones);
  p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones] = fs;
}

// One row of the radius search.
struct FilaRadio {
  double radio, centroX, centroY, FS;
};
constexpr std::size_t kFilasBúsqueda = 100;

// Centre of the arc of radius `radio` through the two ends of the surface; false when its ordinate
// falls below the upper end.
bool CentroParaRadio(const Proyecto& p, double radio, double& cx, double& cy) {
  const auto& w = p.Trabajo;
  const double beta =
      std::atan(Div(w.YPrimerPuntoFalla - w.YÚltimoPuntoFalla, w.XMáximaFalla - w.XMínimaFalla,
                    "la inclinación de la cuerda del arco"));
  const double c = Div(p.ParámetrosIniciales.Cuerda, 2.0 * radio, "la semicuerda del arco");
  const double theta = std::atan2(c, Raíz(1.0 - c * c, "el ángulo del arco"));
  const double gamma = theta - beta;
  cx = std::sin(gamma) * radio + w.XMínimaFalla;
  cy = std::cos(gamma) * radio + w.YÚltimoPuntoFalla;
  return !(cy < w.YPrimerPuntoFalla);
}

// The search of the radius of least factor of safety, from the radius of the start upwards in
// steps of 1 m while the factor falls, then downwards from the start; the smaller of the two bests
// is calculated once more and is the result.
ResultadoIteración BúsquedaDelRadio(Proyecto& p, Interfaz& ui, GuardasBishop& guardas,
                                    double fsInicial, const EjecutorEtapas& etapas, int límite) {
  auto& pi = p.ParámetrosIniciales;
  auto& w = p.Trabajo;
  w.RadioEnVariación = true;
  const double r0 = pi.Radio;
  w.RadioActual = r0;
  int dirección = +1;
  std::vector<FilaRadio> filas;
  std::size_t inicioDirección = 0;    // first row of the current direction
  std::optional<FilaRadio> mejor[2];  // [0] going up, [1] going down
  double fs = fsInicial;

  auto mejorDeEstaDirección = [&] {
    if (filas.size() > inicioDirección) mejor[dirección > 0 ? 0 : 1] = filas.back();
  };

  for (;;) {
    filas.push_back({w.RadioActual, pi.CentroX, pi.CentroY, fs});
    if (filas.size() > 1 && !(fs < filas[filas.size() - 2].FS)) {
      const FilaRadio previa = filas[filas.size() - 2];
      if (dirección > 0) {
        mejor[0] = previa;
        w.RadioActual = r0;
        dirección = -1;
        inicioDirección = filas.size();
      } else {
        mejor[1] = previa;
        break;
      }
    }
    if (filas.size() >= kFilasBúsqueda) {  // the table of the search is full
      mejorDeEstaDirección();
      break;
    }

    w.RadioActual += dirección;
    bool detenida = false;
    double cx = 0, cy = 0;
    for (int vueltas = 0;; ++vueltas) {
      if (w.RadioActual < pi.Cuerda / 2) {  // no arc this small passes through both ends
        detenida = true;
        break;
      }
      if (CentroParaRadio(p, w.RadioActual, cx, cy)) break;
      if (dirección > 0 && vueltas < 1000) {
        w.RadioActual += 1;
        continue;
      }
      detenida = true;
      break;
    }
    if (detenida) {
      mejorDeEstaDirección();
      break;
    }
    pi.CentroX = cx;
    pi.CentroY = cy;
    pi.Radio = w.RadioActual;
    etapas(p, ui);
    const ResultadoIteración r = IteraciónBishop(p, ui, guardas, límite);
    if (r.fin != FinIteración::Convergió) return r;
    fs = r.FS;
  }

  // The smaller of the two bests; a tie goes to the way down. A way with no row counts as 100.
  const double fsSube = mejor[0] ? mejor[0]->FS : 100.0;
  const double fsBaja = mejor[1] ? mejor[1]->FS : 100.0;
  FilaRadio elegida = filas.front();
  if (mejor[1] && fsBaja <= fsSube)
    elegida = *mejor[1];
  else if (mejor[0])
    elegida = *mejor[0];

  pi.Radio = w.RadioActual = elegida.radio;
  pi.CentroX = elegida.centroX;
  pi.CentroY = elegida.centroY;
  etapas(p, ui);
  return IteraciónBishop(p, ui, guardas, límite);
}

}  // namespace

bool CargaUniformeSobreDovela(const Proyecto& p, long k, long i) {
  const double x = p.TablaDovelas.XMedio[i];
  return p.CargaUniforme.xo[k] <= x && x <= p.CargaUniforme.xf[k];
}

bool CargaPuntualEnDovela(const Proyecto& p, long k, long i) {
  const double x = p.CargaPuntual.Xpuntual[k];
  return p.TablaDovelas.BordeX[i + 1] <= x && x <= p.TablaDovelas.BordeX[i];
}

void AvisoSinConvergencia(Interfaz& ui, const std::string& método, double últimoFS, int pasadas) {
  ui.Mensaje("El cálculo por el método de " + método + " no convergió en " +
                 std::to_string(pasadas) +
                 " iteraciones. El factor de seguridad de la última iteración fue " +
                 Formato(últimoFS, "#0.000") + ". No se guardó ningún resultado.",
             kTítuloSinConvergencia);
}

void AvisoSinDovelas(Interfaz& ui) {
  ui.Mensaje("No hay dovelas para calcular. Revise la superficie de falla y el número de dovelas.",
             "Sin dovelas:");
}

bool PuertaParámetrosInstantáneos(Proyecto& p, Interfaz& ui) {
  if (Mayúsculas(Recortar(p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos)) != "S")
    return true;
  if (!p.ParámetrosInstantáneosCalculados) {
    ui.Mensaje(
        "Este problema corresponde al método de parámetros instantáneos por favor "
        "seleccione:Suelos o Rocas "
        "(parámetros instantáneos c,fi). ",
        "No es el camino:");
    return false;
  }
  return ui.Pregunta(
      "Ud. está calculando por el método de parámetros instantáneos. ¿Desea continuar el cálculo?");
}

void DovelasDelMétodo(Proyecto& p, Interfaz& ui) {
  const auto& pi = p.ParámetrosIniciales;
  auto& d = p.TablaDovelas;
  const bool pase = pi.UsaParámetrosInstantáneos;
  const int caso = pi.ParámetrosInstantáneos;

  // The stages rebuild strength and pressures from the strata: the values of the instantaneous
  // pass are kept aside and may go back.
  const bool guardar =
      p.NúmeroBordes > 1 && pase && pi.ParámetrosInstantáneosDisponibles && caso >= 1 && caso <= 3;
  Tabla<double> fricción, cohesión, poros;
  if (guardar) {
    fricción = d.FricciónBase;
    cohesión = d.CohesiónBase;
    poros = d.PresiónPoros;
  }
  auto devolver = [&] {
    if (!guardar) return;
    d.FricciónBase = fricción;
    d.CohesiónBase = cohesión;
    d.PresiónPoros = poros;
  };

  PrepararDovelas(p, ui, pase && caso == 3);

  if (pase && (caso == 1 || caso == 2) && p.ReutilizarParámetrosInstantáneos) devolver();
  if (pase && caso == 3) {
    if (pi.ParámetrosInstantáneosDisponibles)
      ui.Mensaje(
          "Parámetros de resistencia y de presión de poros que se tomarán para las estimaciones "
          "del factor "
          "de seguridad.",
          "Parámetros de resistencia.");
    else
      ui.Mensaje(
          "A continuación se presenta la pantalla de la sesión 'Cambio de parámetros de "
          "resistencia' para que  "
          "dé  los valores de cohesión, fricción y presión de poros  para cada dovela.",
          "Cambie los valores si lo requiere.");
    devolver();
  }
  if (pase) CalcularParámetrosInstantáneos(p, ui);

  if (Mayúsculas(Recortar(pi.LetraUsaParámetrosInstantáneos)) == "S") {
    const long n = p.NúmeroBordes - 1;
    d.TanFricciónBase.RedimensionarConservando(std::max<long>(n, d.TanFricciónBase.Tamaño()));
    for (long i = 1; i <= n; ++i) d.TanFricciónBase[i] = std::tan(kPi * d.FricciónBase[i] / 180.0);
  }
}

ResultadoIteración IteraciónBishop(Proyecto& p, Interfaz& ui, GuardasBishop& guardas,
                                   int límitePasadas) {
  auto& d = p.TablaDovelas;
  const auto& pi = p.ParámetrosIniciales;
  const long n = p.NúmeroBordes - 1;
  const bool circular = p.SuperficieCircular();
  const double kh = pi.CoeficienteSísmicoHorizontal, kv = pi.CoeficienteSísmicoVertical;
  const double xr = pi.ReferenciaMomentoX, yr = pi.ReferenciaMomentoY;
  const double radio = pi.Radio;

  std::vector<double> alfa(n + 1), normal(n + 1), peso(n + 1), cargas(n + 1), momentoCargas(n + 1);
  for (long i = 1; i <= n; ++i) {
    double a;
    if (circular) {
      const double s = Div(d.XMedio[i] - pi.CentroX, radio, "el seno del ángulo de la base");
      a = std::atan(Div(s, Raíz(1.0 - s * s, "el coseno del ángulo de la base"),
                        "la tangente del ángulo de la base"));
    } else {
      a = std::atan(d.PendienteBase[i]);
    }
    if (p.Trabajo.YPrimerPuntoFalla < p.Trabajo.YÚltimoPuntoFalla) a = std::fabs(a);
    alfa[i] = a;
    const double b = d.Ancho[i];
    peso[i] =
        (d.YTalud[i] - d.YBase[i]) * d.PesoUnitarioMedio[i] * b + d.AlturaAguaSobreTalud[i] * b;
    for (long k = 1; k <= p.CargasUniformesVigentes(); ++k)
      if (CargaUniformeSobreDovela(p, k, i)) cargas[i] += p.CargaUniforme.qy[k] * b;
    for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k)
      if (CargaPuntualEnDovela(p, k, i)) cargas[i] += p.CargaPuntual.Py[k];
    momentoCargas[i] = MomentoDeCargas(p, xr, yr, i);
  }

  double fs = pi.FSInicial;
  for (int pasada = 1; pasada <= límitePasadas; ++pasada) {
    double resistente = 0, motor = 0;
    for (long i = 1; i <= n; ++i) {
      const double a = alfa[i], sa = std::sin(a), ca = std::cos(a), W = peso[i];
      const double b = d.Ancho[i], u = d.PresiónPoros[i], c = d.CohesiónBase[i],
                   t = d.TanFricciónBase[i];
      double n0 = (1 + kv) * W + cargas[i];
      n0 += Div((t * u - c) * (std::tan(a) * b), fs, "el factor de seguridad");
      const double m = sa * t / fs + ca;
      if (!guardas.esfuerzoEfectivoAceptado && m != 0 && n0 / m - u * b / ca <= 0) {
        if (!ui.Pregunta(kGuardaEsfuerzoEfectivo)) return {FinIteración::Salió, -1};
        guardas.esfuerzoEfectivoAceptado = true;
      }
      if (!guardas.ángulosAceptados && m <= 0.2) {
        if (!ui.Pregunta(kGuardaÁngulos)) return {FinIteración::Salió, -1};
        guardas.ángulosAceptados = true;
      }
      const double N = Div(n0, m, "la fuerza normal en la base de una dovela");
      const double l = Div(b, ca, "la longitud de la base de una dovela");
      const double R = (N - u * l) * t + c * l;
      double D;
      if (circular) {
        resistente += R;
        const bool aguaEncima = d.YFreático[i] > d.YTalud[i] && !p.DesembalseRápido;
        const double H = aguaEncima ? d.YFreático[i] - d.YBase[i] : d.YTalud[i] - d.YBase[i];
        D = (2 * radio * ca - H) * (kh * 0.5 * W) + (1 + kv) * W * radio * sa;
      } else {
        resistente += R * sa * (d.XMedio[i] - xr) - R * ca * (d.YBase[i] - yr);
        D = (d.XMedio[i] - xr) * (1 + kv) * W -
            (d.YTalud[i] + d.YBase[i] - 2 * yr) * (kh * 0.5 * W) -
            ((d.YBase[i] - yr) * sa + (d.XMedio[i] - xr) * ca) * N;
      }
      motor += D + momentoCargas[i];
      normal[i] = N;
    }
    const double nuevo =
        Finito(Div(resistente, motor, "el factor de seguridad"), "el factor de seguridad");
    if (std::fabs(nuevo - fs) < 0.001) {
      d.ÁnguloBase.Redimensionar(n);
      d.FuerzaNormal.Redimensionar(n);
      for (long i = 1; i <= n; ++i) {
        d.ÁnguloBase[i] = alfa[i];
        d.FuerzaNormal[i] = normal[i];
      }
      AgregarFactorAHistoria(p, nuevo);
      return {FinIteración::Convergió, nuevo};
    }
    fs = nuevo;
  }
  return {FinIteración::NoConvergió, fs};
}

void MétodoBishop(Proyecto& p, Interfaz& ui) {
  MétodoBishopConOpciones(p, ui, OpcionesBishop{});
}

void MétodoBishopConOpciones(Proyecto& p, Interfaz& ui, const OpcionesBishop& opciones) {
  auto& pi = p.ParámetrosIniciales;
  if (!PuertasIniciales(p, ui)) return;
  if (!PuertaRecalcular(p, ui)) return;
  if (pi.MétodoDeCálculo == 1 || pi.MétodoDeCálculo == 3 || pi.MétodoDeCálculo == 4) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  if (!PuertaGrieta(p, ui)) return;

  // A run that stops (a No at a guard, no convergence, a fault) leaves the project as it was
  // before it: the stages rebuild the slices, the radius search zeroes the result columns and
  // moves the radius and centre through trial values, none of which may outlive a run with no
  // result.
  const Proyecto antes = p;
  PasePrevioInstantáneo(p);
  const HistoriaGuardada historia(p);
  p.NúmeroIteraciones = 0;
  if (Mayúsculas(p.TipoDeMaterial) == "R" && !pi.UsaParámetrosInstantáneos) {
    ui.Mensaje(
        "Ud. ha considerado el material como una 'ROCA' y no calculará por este método a menos que "
        "Ud. "
        "seleccione parámetros instantáneos.",
        "No es SUELO:");
    historia.Devolver(p);
    return;
  }
  if (!PuertaParámetrosInstantáneos(p, ui)) {
    historia.Devolver(p);
    return;
  }
  try {
    DovelasDelMétodo(p, ui);
  } catch (...) {
    p = antes;
    throw;
  }
  if (p.NúmeroBordes < 2) {
    AvisoSinDovelas(ui);
    historia.Devolver(p);
    return;
  }

  const EjecutorEtapas etapas = opciones.etapas ? opciones.etapas : EjecutorEtapas(EjecutarEtapas);
  GuardasBishop guardas;
  ResultadoIteración r;
  try {
    r = IteraciónBishop(p, ui, guardas, opciones.límitePasadas);
    if (r.fin == FinIteración::Convergió && pi.VaríaRadio && p.SuperficieCircular())
      r = BúsquedaDelRadio(p, ui, guardas, r.FS, etapas, opciones.límitePasadas);
  } catch (...) {
    p = antes;
    historia.Devolver(p);
    throw;
  }
  if (r.fin == FinIteración::Salió) {
    p = antes;
    historia.Devolver(p);
    return;
  }
  if (r.fin == FinIteración::NoConvergió) {
    p = antes;
    historia.Devolver(p);
    AvisoSinConvergencia(ui, "Bishop", r.FS, opciones.límitePasadas);
    return;
  }

  // Stresses at the bases with the final factor.
  auto& d = p.TablaDovelas;
  const long n = p.NúmeroBordes - 1;
  const double fs = r.FS;
  d.EsfuerzoNormalTotal.Redimensionar(n);
  d.EsfuerzoTangencial.Redimensionar(n);
  d.EsfuerzoNormalEfectivo.Redimensionar(n);
  p.SumaTangenciales = p.SumaNormalesTotales = p.SumaNormalesEfectivos = 0;
  for (long i = 1; i <= n; ++i) {
    const double u = d.PresiónPoros[i];
    const double sigma =
        Div(std::cos(d.ÁnguloBase[i]) * d.FuerzaNormal[i], d.Ancho[i], "el esfuerzo normal");
    d.EsfuerzoNormalTotal[i] = sigma;
    d.EsfuerzoTangencial[i] =
        Div((sigma - u) * d.TanFricciónBase[i] + d.CohesiónBase[i], fs, "el esfuerzo tangencial");
    d.EsfuerzoNormalEfectivo[i] = sigma - u;
    p.SumaTangenciales += d.EsfuerzoTangencial[i];
    p.SumaNormalesTotales += sigma;
    p.SumaNormalesEfectivos += sigma - u;
  }
  if (p.NúmeroTramosFalla > 1 && pi.ParámetrosInstantáneos > 1) {
    pi.CentroX = pi.ReferenciaMomentoX;
    pi.CentroY = pi.ReferenciaMomentoY;
  }
  p.CálculoHecho = true;
  ui.Mensaje(
      "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Bishop para "
      "suelos.");
}

}  // namespace lomaterra
