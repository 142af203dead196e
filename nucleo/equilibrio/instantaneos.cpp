#include "equilibrio/instantaneos.h"

#include <cmath>

#include "equilibrio/bishop.h"
#include "equilibrio/form18.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}

bool EsRoca(const Proyecto& p) {
  return Mayúsculas(p.TipoDeMaterial) == "R";
}

// The material of the base of slice i, as the runs of case 2 compare it.
bool MismoMaterial(const Proyecto& p, long i, long j) {
  const auto& d = p.TablaDovelas;
  if (EsRoca(p)) return d.m_Base[i] == d.m_Base[j] && d.s_Base[i] == d.s_Base[j];
  return d.CohesiónBase[i] == d.CohesiónBase[j] && d.FricciónBase[i] == d.FricciónBase[j];
}

}  // namespace

void CálculoParámetrosInstantáneos(Proyecto& p, Interfaz& ui) {
  auto& pi = p.ParámetrosIniciales;
  const int caso = pi.ParámetrosInstantáneos;
  if (Mayúsculas(p.TipoDeAnálisis) == "F") {
    ui.Mensaje("Ud. está trabajando con elementos finitos");
    return;
  }
  if (!p.CálculoHecho) {
    ui.Mensaje(
        "Por favor realice el cálculo primero usando uno de los métodos indicados en la opción "
        "'Parámetros iniciales' del menú de equilibrio límite, y luego si aplique el método de "
        "parámetros instántaneos",
        "Haga el cálculo:");
    return;
  }
  if (caso == 0) {
    ui.Mensaje(
        "Indique en el menú Equilibrio Límite, en la Opción 'Parámetros de cálculo iniciales, Sí "
        "los "
        "parámetros instantáneos lo va hacer por el método Puntual (Caso 1) o ENTRE PUNTOS (Caso "
        "2) "
        "o por GRAFICA (Caso 3)",
        "Defina la forma de calcularlos:");
    return;
  }
  if (Mayúsculas(p.TipoDeMaterial) == "S" && caso == 1) {
    ui.Mensaje(
        "Para el caso de Suelos,  Parámetros instantáneos puntuales  <caso 1>  (vea parámetros de "
        "cálculo iniciales) no es válido. El caso <1> solamente es válido si el  material es roca. "
        "Para hacer el análisis en parámetros instantaneos por el método de cálculo 1, se debe  "
        "haber realizado el análisis previamente  por el método de cálculo de Leshchinsky, D. and "
        "Huang aplicado a rocas (método cálculo 1).");
    return;
  }
  // The choice of keeping the values is made anew each time the pass is ordered.
  p.ReutilizarParámetrosInstantáneos = false;
  if (Mayúsculas(Recortar(pi.LetraUsaParámetrosInstantáneos)) == "S" &&
      pi.ParámetrosInstantáneosDisponibles) {
    if (!ui.Pregunta(
            "Ud ya calculó este problema con los parámetros instantáneos y por consiguiente ya "
            "tiene la solución. Sin embargo ud puede hacer un cálculo abriendo el archivo original "
            "de donde se obtuvo éste y aplicando el método de ROCAS o SUELOS y modificando "
            "geometría y características geomecánicas. Sin embargo ¿Desea hacer un recálculo con "
            "estos nuevos resultados de esfuerzos o calcular nuevamente con los parámetros "
            "instantáneos que ya se tienen?"))
      return;
    if (ui.Pregunta("Ud. Desea calcular con los parámetros instantáneos que ya se tienen?")) {
      p.ReutilizarParámetrosInstantáneos = true;
    } else if (caso == 1 || caso == 2) {
      ui.Mensaje(
          "Ud. va a calcular con nuevos parámetros instantáneos en función de los últimos "
          "esfuerzos",
          "OJO:");
    } else {
      ui.Mensaje(
          "Ud. en la sesión de Parámetros de cálculo inciales, ha seleccioando la opción 3 para "
          "los "
          "parámetros instantáneos. Ejecutando su repuesta anterior, el programa no hará ningún "
          "recálculo .");
      return;
    }
  }
  const int método = pi.MétodoDeCálculo;
  if (método == 3) {
    ui.Mensaje(
        "Por el método  de FELLENIUS, no se hace el cálculo del factor de seguridad por parámetros "
        "instantáneos",
        "No se hace el cálculo:");
    return;
  }
  const char* pregunta = nullptr;
  if (método == 1)
    pregunta =
        "Ud va ha calcular usando los parámetros instantáneos por el Método de Dov Leshchinsky and "
        "Huang .¿Desea continuar?";
  else if (método == 2)
    pregunta =
        "Ud va ha calcular usando los parámetros instantáneos por el Método de Bishop .¿Desea "
        "continuar?";
  else if (método == 4)
    pregunta =
        "Ud va ha calcular usando los parámetros instantáneos por el Método de Janbu .¿Desea "
        "continuar?";
  if (pregunta && !ui.Pregunta(pregunta)) return;
  if ((caso == 1 || caso == 2) && !p.ReutilizarParámetrosInstantáneos)
    ui.Mensaje(
        "Este nuevo cálculo estimará  los parámetros de resistencia en cada dovela para hacer el "
        "análisis de estabilidad en función de los esfuerzos previamente calculados.");
  pi.UsaParámetrosInstantáneos = true;
  pi.LetraUsaParámetrosInstantáneos = "S";
  p.ParámetrosInstantáneosCalculados = true;
  // In rock too the soil commands run: the per-slice c and φ stand in place of the rock law.
  if (método == 1)
    ProcesoIterativoEnSuelos(p, ui);
  else if (método == 2)
    MétodoBishop(p, ui);
  else if (método == 4)
    MétodoJanbu(p, ui);
}

void PasePrevioInstantáneo(Proyecto& p) {
  const auto& pi = p.ParámetrosIniciales;
  const int caso = pi.ParámetrosInstantáneos;
  if (!pi.UsaParámetrosInstantáneos || (caso != 1 && caso != 2) ||
      p.ReutilizarParámetrosInstantáneos)
    return;
  const auto& d = p.TablaDovelas;
  const long n = d.EsfuerzoTangencial.Tamaño();
  const double F = p.NúmeroIteraciones >= 1
                       ? p.HistoriaIteraciones.FactorDeSeguridad.Leer(p.NúmeroIteraciones)
                       : 0;
  p.ResistenciaMovilizadaPrevia.Redimensionar(n);
  p.EsfuerzoEfectivoPrevio.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    p.ResistenciaMovilizadaPrevia[i] = F * d.EsfuerzoTangencial[i];
    p.EsfuerzoEfectivoPrevio[i] = d.EsfuerzoNormalEfectivo.Leer(i);
  }
}

RectasInstantáneas RectasEntrePuntos(const Proyecto& p) {
  const long n = p.NúmeroBordes - 1;
  const auto& y = p.ResistenciaMovilizadaPrevia;
  const auto& x = p.EsfuerzoEfectivoPrevio;
  RectasInstantáneas r;
  r.pendiente.assign(Z(n + 1), 0.0);
  r.intercepto.assign(Z(n + 1), 0.0);
  if (p.NúmeroEstratos == 1) {
    for (long i = 1; i <= n - 1; ++i) {
      r.pendiente[Z(i)] = std::fabs(
          Div(y[i + 1] - y[i], x[i + 1] - x[i],
              "la recta entre dos dovelas vecinas (tienen el mismo esfuerzo efectivo previo)"));
      r.intercepto[Z(i)] = y[i + 1] - r.pendiente[Z(i)] * x[i + 1];
    }
    return r;
  }
  // A least-squares line for each run of consecutive slices of one material.
  long k = 0;
  double Sy = 0, Sx = 0, Sxy = 0, Sxx = 0;
  for (long i = 1; i <= n; ++i) {
    const bool igualSiguiente = i < n && MismoMaterial(p, i, i + 1);
    const bool igualAnterior = i > 1 && MismoMaterial(p, i, i - 1);
    const bool entra =
        igualSiguiente || (i < n && i > 1 && k >= 1 && igualAnterior) || (i == n && igualAnterior);
    if (entra) {
      ++k;
      Sy += y[i];
      Sx += x[i];
      Sxy += x[i] * y[i];
      Sxx += x[i] * x[i];
    }
    const bool cierra = (i < n && !igualSiguiente && k > 1) || (i == n && k > 1 && igualAnterior);
    if (cierra) {
      const double kk = static_cast<double>(k);
      const double m = Div(Sxy - Sx * Sy / kk, Sxx - Sx * Sx / kk,
                           "la recta de mínimos cuadrados de un tramo de dovelas (todas tienen el "
                           "mismo esfuerzo efectivo previo)");
      const double b = Sy / kk - Sx * m / kk;
      for (long j = i - k + 1; j <= i; ++j) {
        r.pendiente[Z(j)] = m;
        r.intercepto[Z(j)] = b;
      }
      k = 0;
      Sy = Sx = Sxy = Sxx = 0;
    }
  }
  // A slice left out of every run keeps its own values.
  const auto& d = p.TablaDovelas;
  for (long i = 1; i <= n; ++i)
    if (r.pendiente[Z(i)] == 0 && r.intercepto[Z(i)] == 0) {
      r.pendiente[Z(i)] = EsRoca(p) ? d.s_Base[i] : d.TanFricciónBase[i];
      r.intercepto[Z(i)] = EsRoca(p) ? d.m_Base[i] : d.CohesiónBase[i];
    }
  return r;
}

void CalcularParámetrosInstantáneos(Proyecto& p, Interfaz& ui) {
  auto& pi = p.ParámetrosIniciales;
  const int caso = pi.ParámetrosInstantáneos;
  const double π = 4 * std::atan(1.0);
  auto& d = p.TablaDovelas;
  const long n = p.NúmeroBordes - 1;
  const bool reutilizar =
      pi.ParámetrosInstantáneosDisponibles && p.ReutilizarParámetrosInstantáneos;
  if (reutilizar && (caso == 1 || caso == 2)) {
    ui.Mensaje("Se utilizan los parámetros de corte ya obtenidos anteriormente.",
               "No hay cálculo de parámetros:");
    pi.ParámetrosInstantáneosDisponibles = false;
    return;
  }
  if (caso == 3) {
    ui.Mensaje("Ud ha dado los parámetros instantáneos por PANTALLA", "PARAMETROS POR PANTALLA:");
    Form18 pantalla(p);
    ui.Abrir(pantalla);
    return;
  }
  if (caso != 1 && caso != 2) return;

  // Everything is made first and written at the end: a fault leaves the slices as they were.
  std::vector<double> c(Z(n + 1)), t(Z(n + 1)), f(Z(n + 1));
  if (caso == 2) {
    const RectasInstantáneas r = RectasEntrePuntos(p);
    for (long i = 1; i <= n; ++i) {
      const std::size_t k = Z(i);
      if (p.NúmeroEstratos != 1) {
        c[k] = r.intercepto[k];
        t[k] = r.pendiente[k];
        f[k] = std::atan(t[k]) * 180 / π;
      } else if (i == 1 || i == n) {
        const std::size_t fila = Z(i == 1 ? 1 : n - 1);
        c[k] = r.intercepto[fila];
        t[k] = r.pendiente[fila];
        f[k] = std::atan(t[k]) * 180 / π;
      } else {
        c[k] = (r.intercepto[k] + r.intercepto[k - 1]) / 2;
        t[k] = (r.pendiente[k] + r.pendiente[k - 1]) / 2;
        f[k] = ((std::atan(r.pendiente[k - 1]) + std::atan(r.pendiente[k])) / 2) * 180 / π;
      }
    }
  } else if (EsRoca(p)) {
    // Case 1, point by point: the friction of the tangent to the Hoek-Brown curve at the stresses
    // of the first pass, and the cohesion that puts the mobilised strength on that tangent.
    for (long i = 1; i <= n; ++i) {
      const std::size_t k = Z(i);
      const double σ1 = d.EsfuerzoPrincipalMayor[i], σ3 = d.EsfuerzoPrincipalMenor[i];
      const char* dónde = "la fricción instantánea de una dovela (sigma 1 igual a sigma 3)";
      const double φ =
          std::atan(Raíz(Div(d.m_Base[i] * d.C_SimpleBase[i], 2 * (σ1 - σ3), dónde) + 1, dónde));
      t[k] = φ;
      c[k] = p.ResistenciaMovilizadaPrevia[i] - std::tan(φ) * p.EsfuerzoEfectivoPrevio[i];
      if (c[k] < 0) c[k] = 0;
      f[k] = φ * 180 / π;
    }
  } else {
    return;
  }
  for (long i = 1; i <= n; ++i) {
    Finito(c[Z(i)], "la cohesión instantánea");
    Finito(f[Z(i)], "la fricción instantánea");
  }
  for (auto* col : {&d.CohesiónBase, &d.FricciónBase, &d.TanFricciónBase})
    if (col->Tamaño() < n) col->RedimensionarConservando(n);
  for (long i = 1; i <= n; ++i) {
    d.CohesiónBase[i] = c[Z(i)];
    d.TanFricciónBase[i] = t[Z(i)];
    d.FricciónBase[i] = f[Z(i)];
  }
}

}  // namespace lomaterra
