#include "elementos/plastico.h"

#include <algorithm>
#include <cmath>

#include "elementos/form26.h"
#include "elementos/solucion.h"
#include "elementos/viscoplastico.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

std::vector<double> BarridoJacobi(const std::vector<double>& M, const std::vector<double>& v, int n) {
  const auto A = [&](int r, int c) { return M[static_cast<std::size_t>(r * n + c)]; };
  std::vector<int> columna(static_cast<std::size_t>(n), -1);
  std::vector<double> pivote(static_cast<std::size_t>(n), 0.0);
  std::vector<char> tomada(static_cast<std::size_t>(n), 0);
  for (int r = 0; r < n; ++r) {
    int mejor = -1;
    for (int c = 0; c < n; ++c)
      if (!tomada[static_cast<std::size_t>(c)] && (mejor < 0 || std::abs(A(r, c)) > std::abs(A(r, mejor)))) mejor = c;
    tomada[static_cast<std::size_t>(mejor)] = 1;
    columna[static_cast<std::size_t>(r)] = mejor;
    pivote[static_cast<std::size_t>(r)] = A(r, mejor);
  }
  std::vector<double> x(static_cast<std::size_t>(n), 0.0);
  for (int pasada = 1; pasada <= 7; ++pasada) {
    const std::vector<double> antes = x;
    for (int r = 0; r < n; ++r) {
      const int pc = columna[static_cast<std::size_t>(r)];
      const double pv = pivote[static_cast<std::size_t>(r)];
      double valor = v[static_cast<std::size_t>(pc)] / pv;
      for (int c = 0; c < n; ++c) {
        if (c == pc) continue;
        const double xc = (r > 0 && c < pc) ? x[static_cast<std::size_t>(c)] : antes[static_cast<std::size_t>(c)];
        valor -= A(r, c) / pv * xc;
      }
      x[static_cast<std::size_t>(pc)] = std::clamp(valor, -5000.0, 5000.0);
    }
    bool quieto = true;
    for (int c = 0; c < n; ++c) quieto = quieto && std::abs(x[static_cast<std::size_t>(c)] - antes[static_cast<std::size_t>(c)]) <= 0.001;
    if (quieto) break;
  }
  return x;
}

bool Cálculoplástico(Proyecto& p, Interfaz& ui, CálculoElementos& c) {
  MallaElementos& m = p.Malla;
  const long ne = m.NúmeroDeElementos, nd = 2L * m.NúmeroDeNodos;
  AlmacénRigidez& K = *c.MatrizRigidez;
  if (!ModificarYFactorizar(p, K, ui, kMensajeDiagonalCeroPlástico)) return false;
  m.NúmeroDeIteración = 0;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor,
                            &m.EsfuerzoPrincipalMenor, &m.Desplazamientos, &m.FunciónFluencia})
    t->Borrar();
  m.TiempoAcumulado.Borrar();
  m.CálculoViscoplásticoHecho = false;
  DimensionarResultados(m, 2);

  const std::vector<double> u1 = DesplazamientosElásticos(p, K);
  std::vector<double> corrección(static_cast<std::size_t>(nd + 1), 0.0);
  const auto gdl = [&](long e, int k) {
    const long n = std::lround(m.Elemento.NúmeroElemento.Leer(e, (k + 1) / 2));
    return k % 2 == 1 ? 2 * n - 1 : 2 * n;
  };
  std::array<double, 13> xAnterior{};
  int columnasAnterior = 0;
  for (long e = 1; e <= ne; ++e) {
    const int nodos = m.Elemento.NodosPorElemento.Leer(e);
    const int columnas = 2 * nodos;
    const PuntosIntegración pi = PuntosDelTriángulo(nodos);
    const MaterialElemento mat = MaterialDe(p, e);
    const double fi = 3.14159265358979 * mat.fi / 180;
    const double s = std::sin(fi);
    const MatrizD& D = c.MatricesD[static_cast<std::size_t>(e - 1)];
    std::array<double, 13> ue{}, xe{};
    for (int k = 1; k <= columnas; ++k) ue[static_cast<std::size_t>(k)] = u1[static_cast<std::size_t>(gdl(e, k))];
    for (int g = 1; g <= pi.n; ++g) {
      const PuntoB& B = c.B(e, g);
      double eps[4] = {};
      for (int r = 1; r <= 3; ++r)
        for (int k = 1; k <= columnas; ++k) eps[r] += B.B[r][k] * ue[static_cast<std::size_t>(k)];
      if (eps[3] == 0.0) eps[3] = 1e-8;
      double sigma[4] = {};
      for (int r = 1; r <= 3; ++r)
        for (int q = 1; q <= 3; ++q) sigma[r] += D.D[r][q] * eps[q];
      if (g == 1) {
        m.EsfuerzoX(e, 1) = sigma[1];
        m.EsfuerzoY(e, 1) = sigma[2];
        m.EsfuerzoXY(e, 1) = sigma[3];
        EsfuerzosPrincipales(m, e, 1);
      } else {
        m.EsfuerzoX(e, 1) += sigma[1];
        m.EsfuerzoY(e, 1) += sigma[2];
        m.EsfuerzoXY(e, 1) += sigma[3];
      }
      const double tau = m.EsfuerzoXY(e, 1);
      const EstadoFluencia f = FunciónDeFluencia(m.EsfuerzoX(e, 1), m.EsfuerzoY(e, 1), tau, fi, mat.c);
      m.FunciónFluencia((e - 1) * 3 + g, 1) = f.F;
      if (e == 1 && g == 1) {
        m.FluenciaMáxima = m.FluenciaMínima = f.F;
        m.ElementoFluenciaMáxima = m.ElementoFluenciaMínima = 1;
        m.PuntoFluenciaMáxima = m.PuntoFluenciaMínima = 1;
      } else if (f.F > m.FluenciaMáxima) {
        m.FluenciaMáxima = f.F;
        m.ElementoFluenciaMáxima = static_cast<Entero>(e);
        m.PuntoFluenciaMáxima = static_cast<Entero>(g);
      } else if (f.F < m.FluenciaMínima) {
        m.FluenciaMínima = f.F;
        m.ElementoFluenciaMínima = static_cast<Entero>(e);
        m.PuntoFluenciaMínima = static_cast<Entero>(g);
      }
      if (f.F <= 0) continue;

      // a. The plastic and the elastic-plastic matrices.
      const MatrizD Dp = MatrizPlástica(mat.E, mat.nu, f, tau);
      double Dep[4][4];
      for (int r = 1; r <= 3; ++r)
        for (int q = 1; q <= 3; ++q) Dep[r][q] = D.D[r][q] - Dp.D[r][q];
      // b. Flow vector.
      const double qq = std::sqrt(9 + 3 * s * s) / (6 * std::sqrt(f.J));
      const double a[4] = {0, s / 3 + qq * f.sx, s / 3 + qq * f.sy, qq * 2 * tau};
      // c. Ten passes of the fixed point for the plastic strain.
      const double nu = mat.nu >= 0.5 ? 0.45 : mat.nu;
      const double G = mat.E / (2 * (1 + nu)), Kv = mat.E / (3 * (1 - 2 * nu));
      const double l = (3 * Kv - 2 * G) / (6 * G);
      const double pa = a[1] + a[2];
      double ep[4] = {0, eps[1], eps[2], eps[3]};
      double ev = ep[1] + ep[2];
      for (int pasada = 0; pasada < 10; ++pasada) {
        const double A = ep[1] * a[1] + ep[2] * a[2] + ep[3] * a[3];
        const double Bb = pa * l * ev;
        const double C = a[1] * a[1] + a[2] * a[2] + a[3] * a[3];
        const double Dd = l * pa * pa;
        const double t = (A + Bb) / (Dd + C);
        for (int r = 1; r <= 3; ++r) ep[r] = t * a[r];
        ev = ep[1] + ep[2];
      }
      // d, e. The plastic stress of the point.
      double paso2[4];
      for (int r = 1; r <= 3; ++r) {
        double w = 0, sp = 0;
        for (int q = 1; q <= 3; ++q) {
          w += ep[q] * Dep[q][r];
          sp += eps[q] * Dp.D[r][q];
        }
        paso2[r] = sp + w;
      }
      if (g == 1) {
        m.EsfuerzoX(e, 2) = paso2[1];
        m.EsfuerzoY(e, 2) = paso2[2];
        m.EsfuerzoXY(e, 2) = paso2[3];
      } else {
        m.EsfuerzoX(e, 2) += paso2[1];
        m.EsfuerzoY(e, 2) += paso2[2];
        m.EsfuerzoXY(e, 2) += paso2[3];
      }
      // f.
      EsfuerzosPrincipales(m, e, 2);
      m.FunciónFluencia((e - 1) * 3 + g, 2) =
          FunciónDeFluencia(m.EsfuerzoX(e, 2), m.EsfuerzoY(e, 2), m.EsfuerzoXY(e, 2), fi, mat.c).F;
      // g. Nodal correction of the element.
      std::vector<double> M(static_cast<std::size_t>(columnas * columnas), 0.0), v(static_cast<std::size_t>(columnas), 0.0);
      for (int c1 = 1; c1 <= columnas; ++c1) {
        for (int c2 = 1; c2 <= columnas; ++c2) {
          double suma = 0;
          for (int r = 1; r <= 3; ++r) suma += B.B[r][c1] * B.B[r][c2];
          M[static_cast<std::size_t>((c1 - 1) * columnas + c2 - 1)] = suma;
        }
        for (int r = 1; r <= 3; ++r) v[static_cast<std::size_t>(c1 - 1)] += ep[r] * B.B[r][c1];
      }
      const std::vector<double> x = BarridoJacobi(M, v, columnas);
      // h. Into the element and the global correction.
      for (int k = 1; k <= columnas; ++k) {
        double& xk = xe[static_cast<std::size_t>(k)];
        xk = g == 1 ? x[static_cast<std::size_t>(k - 1)] : xk + x[static_cast<std::size_t>(k - 1)];
        const long d = gdl(e, k);
        if (u1[static_cast<std::size_t>(d)] == 0.0) continue;  // a restrained direction stays
        double& destino = corrección[static_cast<std::size_t>(d)];
        if (e > 1 && k <= columnasAnterior && gdl(e - 1, k) == d)
          destino = xk >= xAnterior[static_cast<std::size_t>(k)] ? xk : xAnterior[static_cast<std::size_t>(k)];
        else
          destino = xk;
      }
    }
    xAnterior = xe;
    columnasAnterior = columnas;
  }
  for (long d = 1; d <= nd; ++d) {
    m.Desplazamientos(d, 1) = u1[static_cast<std::size_t>(d)];
    m.Desplazamientos(d, 2) = corrección[static_cast<std::size_t>(d)] + u1[static_cast<std::size_t>(d)];
  }
  // Finish.
  m.NúmeroDeIteración = 2;
  CompletarConPasoUno(m, 2);
  for (long e = 1; e <= ne; ++e)
    for (int g = 1; g <= 3; ++g)
      if (m.FunciónFluencia((e - 1) * 3 + g, 2) == 0.0) m.FunciónFluencia((e - 1) * 3 + g, 2) = m.FunciónFluencia((e - 1) * 3 + g, 1);
  for (long d = 1; d <= nd; ++d) {
    m.Desplazamientos(d, 1) *= 100;
    m.Desplazamientos(d, 2) *= 100;
  }
  m.DesplazamientosHechos = true;
  p.CálculoHecho = true;
  ui.Mensaje(
      "A continuación se presenta una pantalla donde se aprecia los valores de las funciones de fluencia, "
      "desplazamientos y esfuerzos.");
  {
    Form29 pantalla(p, 2);
    ui.Abrir(pantalla);
  }
  ui.Mensaje("Se finalizó el cálculo de esfuerzos y desplazamientos considerando un comportamiento plástico.");
  return true;
}

void CálculoEsfuerzosComportamientoPlástico(Proyecto& p, Interfaz& ui, TipoAlmacén tipo) {
  if (!PuertasCálculoEsfuerzos(
          p, ui,
          "Existe  datos o registros para análisis sísmicos. Por tanto, esa información  se borrará (ningún archivo "
          "se borra, solo lo cargado en memoria) ya que se va hacer estimaciones considerando el modelo plástico.  "
          "¿Desea continuar?."))
    return;
  p.Malla.FalloInversa = false;
  p.Malla.CálculoEstático = true;
  CálculoElementos c;
  c.tipo = tipo;
  if (!Elementotriangular(p, ui, c) || p.Malla.FalloInversa) return;
  Cálculoplástico(p, ui, c);
}

void CálculoEsfuerzosComportamientoPlástico(Proyecto& p, Interfaz& ui) {
  CálculoEsfuerzosComportamientoPlástico(p, ui, TipoAlmacén::Perfil);
}

}  // namespace lomaterra
