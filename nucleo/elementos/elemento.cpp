#include "elementos/elemento.h"

#include "proyecto/interfaz.h"

namespace lomaterra {

const char* const kMensajeInversaJacobiano =
    "Estamos en el sub - programa (Inversa). Este sub-programa es llamado del sub-programa "
    "(Matriz_B_Triangular) activado desde el sub-programa  Elementotriangular ó "
    "ElementotriangularSismico. En ellos se calcula el Jacobiano (matriz_jj) para un elemento (i).  "
    "Existe un valor de la diagonal de la matriz  del Jacobiano que tiene  un valor CERO. Revise LAS "
    "COORDENADAS DE LOS LOS NODOS DEL ELEMENTO DE MANERA QUE NO EXISTAN ABSCISAS u ORDENADAS DE "
    "IGUAL VALOR.";
const char* const kMensajeInversaRigidez =
    "Estamos en el sub - programa (Inversa). Este sub-programa fue llamado desde el sub-programa "
    "(Cáculoviscoplástico) donde se requiere hallar la inversa a la matriz (K_modificada_rigidez). "
    "Existe un valor  de la diagonal de la matriz donde su valor es cero. Revise LAS COORDENADAS DE "
    "LOS LOS NODOS DEL ELEMENTO DE MANERA QUE NO EXISTAN ABSCISAS u ORDENADAS DE IGUAL VALOR.";

PuntosIntegración PuntosDelTriángulo(int nodos) {
  // 0.333333333333333 is the 15-digit decimal, not one third.
  constexpr double tercio = 0.333333333333333;
  PuntosIntegración p;
  if (nodos == 6) {
    p.n = 3;
    p.L1 = {0, 0.5, 0.5, 0};
    p.L2 = {0, 0.5, 0, 0.5};
    p.L3 = {0, 0, 0.5, 0.5};
    p.Peso = {0, tercio, tercio, tercio};
  } else {
    p.n = 1;
    p.L1 = {0, tercio, 0, 0};
    p.L2 = {0, tercio, 0, 0};
    p.L3 = {0, tercio, 0, 0};
    p.Peso = {0, 1.0, 0, 0};
  }
  return p;
}

FuncionesForma FuncionesDeForma(const GeometríaElemento& el, double L1, double L2, double L3) {
  FuncionesForma f;
  if (el.nodos != 6) {
    f.N = {0, L1, L2, 1 - L1 - L2};
    f.dxi = {0, 1, 0, -1};
    f.deta = {0, 0, 1, -1};
    return f;
  }
  f.N = {0, (2 * L1 - 1) * L1, (2 * L2 - 1) * L2, (2 * L3 - 1) * L3, 4 * L1 * L2, 4 * L2 * L3, 4 * L1 * L3};
  f.dxi = {0, 4 * L1 - 1, 0, -4 * L3 + 1, 4 * L2, -4 * L2, 4 * (L3 - L1)};
  f.deta = {0, 0, 4 * L2 - 1, -4 * L3 + 1, 4 * L1, 4 * (L3 - L2), -4 * L1};
  // A straight side has no mid-side function; nothing goes to the corners in its place.
  for (int k = 4; k <= 6; ++k)
    if (el.lado[static_cast<std::size_t>(k - 3)] == 2) f.N[k] = f.dxi[k] = f.deta[k] = 0;
  return f;
}

bool Inversa(const std::vector<double>& a, int n, std::vector<double>& inversa, EtapaInversa etapa, Interfaz* ui,
             double* determinante) {
  const std::size_t N = static_cast<std::size_t>(n);
  for (std::size_t i = 0; i < N; ++i) {
    if (a[i * N + i] == 0.0) {
      if (ui && etapa == EtapaInversa::Jacobiano) ui->Mensaje(kMensajeInversaJacobiano);
      if (ui && etapa == EtapaInversa::RigidezModificada) ui->Mensaje(kMensajeInversaRigidez);
      return false;
    }
  }
  if (etapa == EtapaInversa::Jacobiano && determinante) {
    std::vector<double> c(a);
    double det = 1.0;
    for (std::size_t i = 0; i < N; ++i) {
      for (std::size_t r = i + 1; r < N; ++r) {
        const double m = c[r * N + i] / c[i * N + i];
        if (m == 0.0) continue;
        for (std::size_t j = i; j < N; ++j) c[r * N + j] -= m * c[i * N + j];
      }
      det *= c[i * N + i];
    }
    *determinante = det;
  }
  // [A | I], 2N columns a row.
  const std::size_t W = 2 * N;
  std::vector<double> m(N * W, 0.0);
  for (std::size_t i = 0; i < N; ++i) {
    for (std::size_t j = 0; j < N; ++j) m[i * W + j] = a[i * N + j];
    m[i * W + N + i] = 1.0;
  }
  auto restar = [&](std::size_t r, std::size_t i) {
    const double f = m[r * W + i] / m[i * W + i];
    if (f == 0.0) return;
    double* fr = &m[r * W];
    const double* fi = &m[i * W];
    for (std::size_t j = 0; j < W; ++j) fr[j] -= f * fi[j];
  };
  for (std::size_t i = 0; i + 1 < N; ++i)
    for (std::size_t r = i + 1; r < N; ++r) restar(r, i);
  for (std::size_t i = N; i-- > 1;)
    for (std::size_t r = 0; r < i; ++r) restar(r, i);
  inversa.assign(N * N, 0.0);
  for (std::size_t i = 0; i < N; ++i) {
    const double p = m[i * W + i];
    for (std::size_t j = 0; j < N; ++j) inversa[i * N + j] = m[i * W + N + j] / p;
  }
  return true;
}

bool MatrizBTriangular(const GeometríaElemento& el, const PuntosIntegración& pi, int g, PuntoB& b, Interfaz* ui) {
  const std::size_t G = static_cast<std::size_t>(g);
  const FuncionesForma f = FuncionesDeForma(el, pi.L1[G], pi.L2[G], pi.L3[G]);
  std::vector<double> jj(4, 0.0);
  for (int k = 1; k <= el.nodos; ++k) {
    const std::size_t K = static_cast<std::size_t>(k);
    jj[0] += f.dxi[K] * el.x[K];
    jj[1] += f.dxi[K] * el.y[K];
    jj[2] += f.deta[K] * el.x[K];
    jj[3] += f.deta[K] * el.y[K];
  }
  std::vector<double> inv;
  if (!Inversa(jj, 2, inv, EtapaInversa::Jacobiano, ui, &b.detJ)) return false;
  for (auto& fila : b.B)
    for (double& v : fila) v = 0;
  for (int k = 1; k <= el.nodos; ++k) {
    const std::size_t K = static_cast<std::size_t>(k);
    const double dx = inv[0] * f.dxi[K] + inv[1] * f.deta[K];
    const double dy = inv[2] * f.dxi[K] + inv[3] * f.deta[K];
    b.B[1][2 * k - 1] = dx;
    b.B[2][2 * k] = dy;
    b.B[3][2 * k - 1] = dy;
    b.B[3][2 * k] = dx;
  }
  return true;
}

MatrizD MatrizConstitutiva(double E, double nu) {
  MatrizD d;
  const double G = E / ((nu + 1) + (nu + 1));
  if (nu >= 0.5) nu = 0.45;
  const double K = E / ((1 - 2 * nu) * 3);
  d.D[1][1] = d.D[2][2] = K + 4.0 / 3.0 * G;
  d.D[1][2] = d.D[2][1] = K - 2.0 / 3.0 * G;
  d.D[3][3] = G;
  return d;
}

void SumarRigidezPunto(const PuntoB& b, const MatrizD& d, double peso, double espesor, int nodos, MatrizElemento& k) {
  const int c = 2 * nodos;
  const double factor = b.detJ * peso * espesor / 2;
  double DB[4][13] = {};
  for (int r = 1; r <= 3; ++r)
    for (int j = 1; j <= c; ++j)
      for (int s = 1; s <= 3; ++s) DB[r][j] += d.D[r][s] * b.B[s][j];
  for (int i = 1; i <= c; ++i)
    for (int j = 1; j <= c; ++j) {
      double suma = 0;
      for (int r = 1; r <= 3; ++r) suma += b.B[r][i] * DB[r][j];
      k.k[i][j] += suma * factor;
    }
}

void SumarPesoPunto(const GeometríaElemento& el, const PuntosIntegración& pi, int g, double detJ, double b1, double b2,
                    double espesor, std::array<double, 13>& f) {
  const std::size_t G = static_cast<std::size_t>(g);
  const FuncionesForma ff = FuncionesDeForma(el, pi.L1[G], pi.L2[G], pi.L3[G]);
  const double factor = detJ * pi.Peso[G] * espesor * (el.nodos == 3 ? 0.5 : 1.0);
  for (int k = 1; k <= el.nodos; ++k) {
    const std::size_t K = static_cast<std::size_t>(k);
    f[static_cast<std::size_t>(2 * k - 1)] += ff.N[K] * b1 * factor;
    f[static_cast<std::size_t>(2 * k)] += ff.N[K] * b2 * factor;
  }
}

}  // namespace lomaterra
