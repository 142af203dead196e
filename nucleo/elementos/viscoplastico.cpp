#include "elementos/viscoplastico.h"

#include <cmath>
#include <string>

#include "elementos/form26.h"
#include "elementos/solucion.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr double kPi = 3.14159265358979;

bool HayDatosSísmicos(const DatosSísmicos& s) {
  return s.RegistroDado || s.ParámetrosSísmicosDados || s.FormasModalesDadas || s.FrecuenciasDadas ||
         s.SismoCalculado || s.CálculoSísmicoHecho || s.SismoIntegrado || s.MatricesSísmicasDadas ||
         s.NúmeroPuntosRegistro > 0;
}

}  // namespace

EstadoFluencia FunciónDeFluencia(double sigmaX, double sigmaY, double tau, double phi, double c) {
  EstadoFluencia f;
  const double s = std::sin(phi);
  f.a = s / std::sqrt(9 + 3 * s * s);
  f.J = (tau * tau + (sigmaY - sigmaX) * (sigmaY - sigmaX) / 2) / (1 - 3 * f.a * f.a);
  f.sm = ((sigmaX + sigmaY) * 3 / 2 - std::sqrt(f.J) * 3 * f.a) / 3;
  f.sx = sigmaX - f.sm;
  f.sy = sigmaY - f.sm;
  f.F = s * f.sm + std::sqrt(f.J) * std::sqrt(9 + 3 * s * s) / 3 - c * std::cos(phi);
  return f;
}

MatrizD MatrizPlástica(double E, double nu, const EstadoFluencia& f, double tau) {
  if (nu >= 0.5) nu = 0.45;
  const double G = E / (2 * (1 + nu));
  const double K = E / (3 * (1 - 2 * nu));
  const double den = 9 * K * f.a * f.a + G;
  const double raíz = std::sqrt(f.J);
  const double h[4] = {0, G * f.sx / raíz + 3 * K * f.a, G * f.sy / raíz + 3 * K * f.a, G * tau / raíz};
  MatrizD dp;
  for (int r = 1; r <= 2; ++r)
    for (int s = 1; s <= 2; ++s) dp.D[r][s] = h[r] * h[s] / den;
  dp.D[3][3] = h[3] * h[3] / den;
  return dp;
}

void EsfuerzosPrincipales(MallaElementos& m, long e, long i) {
  const double sx = m.EsfuerzoX(e, i), sy = m.EsfuerzoY(e, i), t = m.EsfuerzoXY(e, i);
  double mayor, menor;
  if (sx == sy && t == 0) {
    mayor = sx;
    menor = sy;
  } else {
    const double c0 = (sx + sy) / 2;
    const double r0 = std::sqrt(t * t + ((sy - sx) / 2) * ((sy - sx) / 2));
    mayor = c0 + r0;
    menor = c0 - r0;
  }
  if (mayor < menor) std::swap(mayor, menor);
  m.EsfuerzoPrincipalMayor(e, i) = mayor;
  m.EsfuerzoPrincipalMenor(e, i) = menor;
}

MaterialElemento MaterialDe(const Proyecto& p, long e) {
  const long s = std::lround(p.Malla.Elemento.MaterialDeElemento.Leer(e));
  MaterialElemento r;
  const bool suelo = p.TipoDeMaterial == "S";
  r.E = suelo ? p.Malla.MóduloElasticidad.Leer(s) : p.Estrato.ModuloMacizo.Leer(s);
  r.nu = suelo ? p.Malla.CoeficientePoisson.Leer(s) : p.Estrato.Poisson.Leer(s);
  r.fi = p.Estrato.Fricción.Leer(s);
  r.c = p.Estrato.Cohesión.Leer(s);
  r.viscosidad = p.Estrato.Viscosidad.Leer(s);
  return r;
}

bool PuertasCálculoEsfuerzos(Proyecto& p, Interfaz& ui, const char* preguntaSísmica) {
  MallaElementos& m = p.Malla;
  if (p.TipoDeAnálisis != "F") {
    ui.Mensaje("Ud. no está trabajando con elementos finitos");
    return false;
  }
  if (!p.EstratosCaracterizados) {
    ui.Mensaje(
        "No se han dado los parámetros geotécnicos de los suelos. Vaya al menú 'Parámetros y Cargas' en la opción "
        "'Características geotécnicas'");
    return false;
  }
  if (!m.RestriccionesTrasRefinar) {
    ui.Mensaje(
        "Vaya a la opción Nodos con restricción, e inserte los nuevos Nodos con está característica, debido al "
        "incremento de número de elementos.");
    return false;
  }
  if (p.TipoDeMaterial == "S" && !m.CaracterísticasElásticasDadas) {
    ui.Mensaje(
        "No se ha caracterizado los materiales con sus propiedades elásticas. Vaya al Menú Elemeentos finitos y "
        "seleccione parámetros de los estratos.");
    return false;
  }
  if (!m.ConfirmarElementos) {
    ui.Mensaje("Confirme primero el número de elementos.");
    return false;
  }
  if (HayDatosSísmicos(p.Sísmico)) {
    if (!ui.Pregunta(preguntaSísmica)) return false;
    p.Sísmico.Limpiar();
  }
  if (p.NúmeroPuntosFreático > 0) {
    if (ui.Pregunta("¿Está haciendo análisis en  PRESAS?.")) {
      m.AnálisisPresas = true;
      p.DesembalseRápido = ui.Pregunta(
          "¿Está haciendo análisis de DESEMBALSE RÁPIDO EN PRESAS (sí la respuesta es NO, el análisis se hace para "
          "embalse lleno)?.");
    }
  }
  return true;
}

void DimensionarResultados(MallaElementos& m, long pasos) {
  const long ne = m.NúmeroDeElementos, nd = 2L * m.NúmeroDeNodos;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor, &m.EsfuerzoPrincipalMenor})
    t->RedimensionarConservando(ne, pasos);
  m.Desplazamientos.RedimensionarConservando(nd, pasos);
  m.FunciónFluencia.RedimensionarConservando(3 * ne, pasos);
  m.TiempoAcumulado.RedimensionarConservando(pasos);
}

void CompletarConPasoUno(MallaElementos& m, long i) {
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    Tabla2<double>* t[5] = {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor, &m.EsfuerzoPrincipalMenor};
    bool ceros = true;
    for (auto* x : t) ceros = ceros && (*x)(e, i) == 0.0;
    if (!ceros) continue;
    for (auto* x : t) (*x)(e, i) = (*x)(e, 1);
  }
}

bool CálculoViscoplástico(Proyecto& p, Interfaz& ui, CálculoElementos& c) {
  MallaElementos& m = p.Malla;
  const long ne = m.NúmeroDeElementos, nd = 2L * m.NúmeroDeNodos;
  AlmacénRigidez& K = *c.MatrizRigidez;
  if (!ModificarYFactorizar(p, K, ui, kMensajeDiagonalCeroViscoplástico)) return false;

  // A new run forgets the previous one.
  m.NúmeroDeIteración = 0;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor,
                            &m.EsfuerzoPrincipalMenor, &m.Desplazamientos, &m.FunciónFluencia})
    t->Borrar();
  m.TiempoAcumulado.Borrar();
  m.CálculoViscoplásticoHecho = false;

  const std::vector<double> u1 = DesplazamientosElásticos(p, K);
  std::vector<double> carga(static_cast<std::size_t>(nd + 1), 0.0), pseudo(carga), u(u1);
  for (long d = 1; d <= nd; ++d) carga[static_cast<std::size_t>(d)] = m.VectorDeCargas.Leer(d);
  // Dp of each integration point in the previous step and in this one.
  std::vector<MatrizD> dpAnterior(static_cast<std::size_t>(3 * ne)), dpActual(dpAnterior.size());

  const auto gdl = [&](long e, int k) {  // degree of freedom of column k of element e
    const long n = std::lround(m.Elemento.NúmeroElemento.Leer(e, (k + 1) / 2));
    return k % 2 == 1 ? 2 * n - 1 : 2 * n;
  };

  long i = 0;
  for (;;) {
    ++i;
    DimensionarResultados(m, i);
    m.NúmeroDeIteración = static_cast<Entero>(i);
    if (i > 1) {
      for (long d = 1; d <= nd; ++d) carga[static_cast<std::size_t>(d)] += pseudo[static_cast<std::size_t>(d)];
      u = carga;
      K.Resolver(u);
      for (long d = 1; d <= nd; ++d)
        if (u1[static_cast<std::size_t>(d)] == 0.0) u[static_cast<std::size_t>(d)] = 0.0;
    }
    for (long d = 1; d <= nd; ++d) m.Desplazamientos(d, i) = u[static_cast<std::size_t>(d)];
    std::fill(dpActual.begin(), dpActual.end(), MatrizD{});

    std::array<double, 13> pAnterior{};
    int columnasAnterior = 0;
    for (long e = 1; e <= ne; ++e) {
      const int nodos = m.Elemento.NodosPorElemento.Leer(e);
      const int columnas = 2 * nodos;
      const PuntosIntegración pi = PuntosDelTriángulo(nodos);
      const MaterialElemento mat = MaterialDe(p, e);
      const double fi = kPi * mat.fi / 180;
      const double eta = mat.viscosidad;
      const MatrizD& D = c.MatricesD[static_cast<std::size_t>(e - 1)];
      std::array<double, 13> ue{}, pe{};
      for (int k = 1; k <= columnas; ++k) ue[static_cast<std::size_t>(k)] = u[static_cast<std::size_t>(gdl(e, k))];

      for (int g = 1; g <= pi.n; ++g) {
        const PuntoB& B = c.B(e, g);
        const std::size_t punto = static_cast<std::size_t>((e - 1) * 3 + (g - 1));
        // a. Strains.
        double eps[4] = {};
        for (int r = 1; r <= 3; ++r)
          for (int k = 1; k <= columnas; ++k) eps[r] += B.B[r][k] * ue[static_cast<std::size_t>(k)];
        if (eps[3] == 0.0) eps[3] = 1e-8;
        // c. Stress: D, or D and the plastic matrix of the previous step, by the previous F.
        const double Fp = i > 1 ? m.FunciónFluencia((e - 1) * 3 + g, i - 1) : 0.0;
        const bool conD = i == 1 || RedondeoPar(Fp) <= 0;
        const bool conDp = i > 1 && Fp > 0;
        double sigma[4] = {};
        for (int r = 1; r <= 3; ++r)
          for (int s = 1; s <= 3; ++s) {
            double término = 0;
            if (conD) término += D.D[r][s];
            if (conDp) término += dpAnterior[punto].D[r][s];
            sigma[r] += término * eps[s];
          }
        m.EsfuerzoX(e, i) = sigma[1];
        m.EsfuerzoY(e, i) = sigma[2];
        m.EsfuerzoXY(e, i) = sigma[3];
        // d. Yield function.
        const EstadoFluencia f = FunciónDeFluencia(sigma[1], sigma[2], sigma[3], fi, mat.c);
        m.FunciónFluencia((e - 1) * 3 + g, i) = f.F;
        // l. Extremes.
        if (e == 1) {
          m.FluenciaMáxima = m.FluenciaMínima = f.F;
          m.ElementoFluenciaMáxima = m.ElementoFluenciaMínima = 1;
          m.PuntoFluenciaMáxima = m.PuntoFluenciaMínima = static_cast<Entero>(g);
        } else if (f.F > m.FluenciaMáxima) {
          m.FluenciaMáxima = f.F;
          m.ElementoFluenciaMáxima = static_cast<Entero>(e);
          m.PuntoFluenciaMáxima = static_cast<Entero>(g);
        } else if (f.F < m.FluenciaMínima) {
          m.FluenciaMínima = f.F;
          m.ElementoFluenciaMínima = static_cast<Entero>(e);
          m.PuntoFluenciaMínima = static_cast<Entero>(g);
        }
        // e. A point below the surface gives no pseudo-load.
        if (!(f.F < 0.05 || f.J == 0)) {
          // f. Rate and time step.
          const double g1 = f.F / eta;
          const double s = std::sin(fi);
          const double dtc = 4 * (1 + mat.nu) * (1 - 2 * mat.nu) * eta / ((s * s + 1 - 2 * mat.nu) * mat.E);
          const double paso = m.IntervaloDeTiempo <= dtc ? m.IntervaloDeTiempo : dtc;
          m.TiempoAcumulado[i] = i == 1 ? paso : m.TiempoAcumulado[i - 1] + paso;
          const double T = m.TiempoAcumulado[i];
          // g. Plastic matrix of this step.
          const MatrizD Dp = MatrizPlástica(mat.E, mat.nu, f, sigma[3]);
          dpActual[punto] = Dp;
          // h. Work stress of the flow vector: the value of the third column is what stays.
          double w[4];
          for (int r = 1; r <= 3; ++r)
            w[r] = i == 1 ? sigma[3] - eps[3] * Dp.D[r][3] : sigma[3] - m.EsfuerzoXY(e, i - 1);
          const EstadoFluencia f2 = FunciónDeFluencia(w[1], w[2], w[3], fi, mat.c);
          // i. Flow vector and viscoplastic strain.
          const double mm = std::sqrt(9 + 3 * s * s) / (6 * std::sqrt(f.J));
          const double fl[4] = {0, s / 3 + mm * f2.sx, s / 3 + mm * f2.sy, mm * 2 * w[3]};
          double dE[4];
          for (int r = 1; r <= 3; ++r) dE[r] = fl[r] * g1 * T;
          // j. Implicit matrix (I + q D)^-1 D and the pseudo-load of the point.
          const double ff = fl[1] * fl[1] + fl[2] * fl[2] + fl[3] * fl[3];
          const double q = (ff * f.F + ff) * T / eta;
          std::vector<double> a(9), inv;
          for (int r = 1; r <= 3; ++r)
            for (int s2 = 1; s2 <= 3; ++s2)
              a[static_cast<std::size_t>((r - 1) * 3 + s2 - 1)] = (r == s2 ? 1.0 : 0.0) + q * D.D[r][s2];
          Inversa(a, 3, inv, EtapaInversa::Trabajo, &ui);
          if (inv.size() < 9) inv.assign(9, 0.0);
          double Dh[4][4] = {};
          for (int r = 1; r <= 3; ++r)
            for (int s2 = 1; s2 <= 3; ++s2)
              for (int k = 1; k <= 3; ++k) Dh[r][s2] += inv[static_cast<std::size_t>((r - 1) * 3 + k - 1)] * D.D[k][s2];
          double DhE[4] = {};
          for (int s2 = 1; s2 <= 3; ++s2)
            for (int r = 1; r <= 3; ++r) DhE[s2] += Dh[s2][r] * dE[r];
          for (int k = 1; k <= columnas; ++k) {
            if (u1[static_cast<std::size_t>(gdl(e, k))] == 0.0) continue;
            double v = 0;
            for (int s2 = 1; s2 <= 3; ++s2) v += B.B[s2][k] * DhE[s2];
            pe[static_cast<std::size_t>(k)] += v * B.detJ * pi.Peso[static_cast<std::size_t>(g)];
          }
        }
        // k. The global pseudo-load: the last writer, or the larger of this and the previous
        // element where the same position holds the same degree of freedom.
        for (int k = 1; k <= columnas; ++k) {
          const long d = gdl(e, k);
          if (u1[static_cast<std::size_t>(d)] == 0.0) continue;
          const double v = pe[static_cast<std::size_t>(k)];
          double& destino = pseudo[static_cast<std::size_t>(d)];
          if (e > 1 && k <= columnasAnterior && gdl(e - 1, k) == d) {
            const double previo = pAnterior[static_cast<std::size_t>(k)];
            destino = std::abs(v) >= std::abs(previo) ? v : previo;
          } else {
            destino = v;
          }
        }
      }
      pAnterior = pe;
      columnasAnterior = columnas;
    }
    std::swap(dpAnterior, dpActual);

    // 3. Stop test.
    if (m.FluenciaMáxima <= 0.05 || i == 4) break;
    // 4. The elastic screen after the first step.
    if (i == 1) {
      for (long e = 1; e <= ne; ++e) EsfuerzosPrincipales(m, e, 1);
      ui.Mensaje(
          "A continuación se presenta una pantalla donde se aprecia los valores de las funciones de fluencia, "
          "desplazamientos y esfuerzos cuando se considera que el suelo se comporta elasticamente.");
      Form26 pantalla(p, 1);
      ui.Abrir(pantalla);
    }
    if (!ui.Progreso(static_cast<double>(i) / 4, "Cálculo viscoplástico: paso " + std::to_string(i + 1))) break;
  }
  if (i == 4)
    ui.Mensaje(
        "Existe algún elemento o elementos donde los esfuerzos son mayores a la resistencia del cortante, no "
        "lográndose la convergencia para esos puntos, cuando se tiene un comportamiento viscoplástico.");
  m.CálculoViscoplásticoHecho = true;

  // Finish.
  for (long e = 1; e <= ne; ++e) {
    EsfuerzosPrincipales(m, e, 1);
    EsfuerzosPrincipales(m, e, i);
  }
  for (long d = 1; d <= nd; ++d) {
    m.Desplazamientos(d, 1) *= 100;
    if (i > 1) m.Desplazamientos(d, i) *= 100;
  }
  m.DesplazamientosHechos = true;
  ui.Mensaje(
      "A continuación se presenta una pantalla donde se aprecia los valores de las funciones de fluencia, "
      "desplazamientos y esfuerzos.");
  {
    Form26 pantalla(p, i);
    ui.Abrir(pantalla);
  }
  CompletarConPasoUno(m, i);
  p.CálculoHecho = true;
  ui.Mensaje("Se finalizó el cálculo de esfuerzos y desplazamientos considerando un comportamiento viscoplástico.");
  return true;
}

void CálculoEsfuerzosComportamientoViscoplástico(Proyecto& p, Interfaz& ui, TipoAlmacén tipo) {
  if (!PuertasCálculoEsfuerzos(
          p, ui,
          "Existe  datos o registros para análisis sísmicos. Por tanto, esa información  se borrará (ningún archivo "
          "se borra, solo lo cargado en memoria) ya que se va hacer estimaciones considerando el modelo "
          "elástico-viscoplástico.  ¿Desea continuar?."))
    return;
  p.Malla.FalloInversa = false;
  p.Malla.CálculoEstático = true;
  CálculoElementos c;
  c.tipo = tipo;
  if (!Elementotriangular(p, ui, c) || p.Malla.FalloInversa) return;
  CálculoViscoplástico(p, ui, c);
}

void CálculoEsfuerzosComportamientoViscoplástico(Proyecto& p, Interfaz& ui) {
  CálculoEsfuerzosComportamientoViscoplástico(p, ui, TipoAlmacén::Perfil);
}

}  // namespace lomaterra
