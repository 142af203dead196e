#include "sismico/formas_modales.h"

#include <chrono>
#include <cmath>
#include <string>

#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "sismico/inversa_explicita.h"

namespace lomaterra {

namespace {

constexpr long kColumnasIterados = 5000;

const char* const kDiagonalCero =
    "Estamos en el sub - programa (DeterminaciónDeLascoordenadasNormales). LA MATRIZ DE DRIVADAS SE "
    "HACE CERO EN UN VALOR DE LA DIAGONAL.VARIE LAS COORDENADAS DE LOS LOS NODOS DEL ELEMENTO DE "
    "MANERA QUE NO EXISTAN ABSCISAS U ORDENADAS DE IGUAL VALOR.";
const char* const kTodosSiNo100 =
    "El número indicado al final de este mensaje, corresponde al tiempo en minutos que tardará el "
    "programa en estimar los valores de los vectores de forma modales correspondiente de todos los "
    "modos de vibración. Desea que el programa haga ese cálculo en ese tiempo?. Al responder SI el "
    "programa lo realizará. Al responder No el programa estimará los vectores para los primeros "
    "cien (100) modos de vibración solamente: ";
const char* const kCienSiNo2 =
    "El número indicado al final de este mensaje, corresponde al tiempo en minutos que tardará el "
    "programa en estimar los valores de los vectores de forma modales correspondiente a cien (100) "
    "modos de vibración. Desea que el programa haga ese cálculo en ese tiempo?. Al responder SI el "
    "programa lo realizará. Al responder No el programa estimará los vectores para los dos primeros "
    "dos(2) modos de vibración solamente, de manera de poder aplicar el método de Integración paso "
    "a paso, para estimar esfuerzos y desplazamientos: ";
const char* const kTodosSiNo2 =
    "El número indicado al final de este mensaje, corresponde al tiempo en minutos que tardará el "
    "programa en estimar los valores de los vectores de forma modales correspondiente de todos los "
    "modos de vibración. Desea que el programa haga ese cálculo en ese tiempo?. Al responder SI el "
    "programa lo realizará. Al responder No el programa estimará los vectores para los primeros dos "
    "(2) modos de vibración solamente, de manera de poder aplicar el método de Integración paso a "
    "paso, para estimar esfuerzos y desplazamientos: ";
const char* const kTítulo = "Vectores de forma modales";

std::string Modo(long m) { return "modo de vibración " + std::to_string(m + 1); }

// -(A x), each entry rounded to 11 decimals when asked.
void Residuo(const std::vector<double>& A, long n, const std::vector<double>& x,
             std::vector<double>& r, bool redondear) {
  for (long i = 0; i < n; ++i) {
    const double* f = A.data() + i * n;
    double s = 0;
    for (long j = 0; j < n; ++j) s += f[j] * x[static_cast<std::size_t>(j)];
    r[static_cast<std::size_t>(i)] = redondear ? Redondear11(-s) : -s;
  }
}

}  // namespace

bool CalcularFormasModales(const std::vector<double>& K, const std::vector<double>& M, long n,
                           const std::vector<double>& iniciales, FormasModales& r, Interfaz& ui) {
  using Reloj = std::chrono::steady_clock;
  const auto N = static_cast<std::size_t>(n);
  std::vector<double> frecuencia(iniciales.begin(), iniciales.begin() + n);
  std::vector<double> cuadrado(N, 0.0);
  r.formas.assign(N * N, 0.0);
  r.modosCalculados = 0;
  std::vector<double> A(N * N), inversa, x(N), siguiente(N), residuo(N), forma(N);
  bool primera = true, segunda = false;

  long m = 0;
  for (; m < n; ++m) {
    const auto inicio = Reloj::now();
    for (int pasada = 0; pasada < 2; ++pasada) {
      if (pasada == 0) std::fill(x.begin(), x.end(), 1.0);
      else x = forma;
      const double w2 = frecuencia[static_cast<std::size_t>(m)] * frecuencia[static_cast<std::size_t>(m)];
      for (std::size_t k = 0; k < N * N; ++k) A[k] = K[k] - w2 * M[k];
      for (long i = 0; i < n; ++i)
        if (A[static_cast<std::size_t>(i * n + i)] == 0) {
          ui.Mensaje(kDiagonalCero, kTítulo);
          return false;
        }
      Residuo(A, n, x, residuo, true);
      if (const long fila = InversaGaussJordanPorBloques(A, n, inversa); fila != 0) {
        ui.Mensaje("Estamos en el sub - programa (DeterminaciónDeLascoordenadasNormales). Al invertir "
                   "la matriz de derivadas del " + Modo(m) + " se halló un pivote cero en la fila " +
                   std::to_string(fila) +
                   ": la matriz no se puede invertir sin ordenar. VARIE LAS COORDENADAS DE LOS NODOS "
                   "DE MANERA QUE NO EXISTAN ABSCISAS U ORDENADAS DE IGUAL VALOR. No se guardó ningún "
                   "vector.",
                   kTítulo);
        return false;
      }
      Redondear11(inversa);
      for (long columnas = 1;; ++columnas) {
        double menor = 1e6;
        for (long i = 0; i < n; ++i) {
          const double* f = inversa.data() + i * n;
          double c = 0;
          for (long j = 0; j < n; ++j) c += f[j] * residuo[static_cast<std::size_t>(j)];
          const auto I = static_cast<std::size_t>(i);
          siguiente[I] = x[I] + c;
          menor = std::min(menor, std::fabs(siguiente[I] - x[I]));
        }
        x.swap(siguiente);
        if (menor < 0.1) break;
        if (columnas + 1 >= kColumnasIterados || !std::isfinite(menor)) {
          ui.Mensaje("La iteración del " + Modo(m) + " no convergió en " +
                         std::to_string(kColumnasIterados) +
                         " iteraciones: el cambio más pequeño de una componente no bajó de 0.1. "
                         "Revise la malla y las frecuencias iniciales. No se guardó ningún vector.",
                     kTítulo);
          return false;
        }
        Residuo(A, n, x, residuo, false);
      }
      if (pasada == 0 || x[0] == 0) forma = x;
      else
        for (std::size_t i = 0; i < N; ++i) forma[i] = x[i] / x[0];
      double s1 = 0, s2 = 0;
      for (long j = 0; j < n; ++j) {
        const double p = forma[static_cast<std::size_t>(j)] * M[static_cast<std::size_t>(j * n + j)];
        if (p == 0) continue;
        double q = 0;
        for (long i = 0; i < n; ++i) q += forma[static_cast<std::size_t>(i)] * K[static_cast<std::size_t>(i * n + j)];
        s1 += q / p;
        s2 += p / p;
      }
      const double nuevo = s2 == 0 ? 0 : std::fabs(s1 / s2);
      if (s2 == 0 || !std::isfinite(nuevo)) {
        ui.Mensaje("El vector del " + Modo(m) +
                       " resultó sin masa (todas sus componentes en los grados con masa son cero o "
                       "no son números): la frecuencia no se puede estimar. Revise la malla y las "
                       "masas. No se guardó ningún vector.",
                   kTítulo);
        return false;
      }
      if (pasada == 0) {
        frecuencia[static_cast<std::size_t>(m)] = std::sqrt(nuevo);
        continue;
      }
      double mm = 0;
      for (long i = 0; i < n; ++i)
        mm += forma[static_cast<std::size_t>(i)] * M[static_cast<std::size_t>(i * n + i)] * forma[static_cast<std::size_t>(i)];
      if (!(mm > 0) || !std::isfinite(mm)) {
        ui.Mensaje("El vector del " + Modo(m) +
                       " no se puede normalizar con la masa (su masa modal no es positiva). Revise "
                       "las masas de la malla. No se guardó ningún vector.",
                   kTítulo);
        return false;
      }
      const double raíz = std::sqrt(mm);
      for (long i = 0; i < n; ++i)
        r.formas[static_cast<std::size_t>(i * n + m)] = forma[static_cast<std::size_t>(i)] / raíz;
      cuadrado[static_cast<std::size_t>(m)] = nuevo;
    }
    if (m == 0) {
      const double t =
          std::chrono::duration<double>(Reloj::now() - inicio).count() / 60.0;
      if (n > 100) {
        primera = ui.Pregunta(kTodosSiNo100 + Formato(t * static_cast<double>(n), "#0.00"), kTítulo);
        if (!primera) segunda = ui.Pregunta(kCienSiNo2 + Formato(t * 100, "#0.00"), kTítulo);
      } else {
        primera = ui.Pregunta(kTodosSiNo2 + Formato(t * static_cast<double>(n), "#0.00"), kTítulo);
      }
    }
    if (!ui.Progreso(static_cast<double>(m + 1) / static_cast<double>(n),
                     "Vectores de forma modales: modo " + std::to_string(m + 1) + " de " +
                         std::to_string(n))) {
      ui.Mensaje("Se canceló la estimación de los vectores de forma modales. No se guardó ningún "
                 "vector y las frecuencias quedaron como estaban.",
                 kTítulo);
      return false;
    }
    const long modo = m + 1;
    if (!primera && segunda && n > 100 && modo > 100) { r.modosCalculados = 100; break; }
    if (!primera && !segunda && n > 100 && modo > 2) { r.modosCalculados = 2; break; }
    if (!primera && n <= 100 && modo > 2) { r.modosCalculados = 2; break; }
  }
  if (m >= n) r.modosCalculados = static_cast<int>(n);

  if (r.modosCalculados < n) {
    long mayor = 0;
    double valor = -10000;
    for (long j = 0; j < r.modosCalculados; ++j)
      if (cuadrado[static_cast<std::size_t>(j)] > valor) valor = cuadrado[static_cast<std::size_t>(j)], mayor = j;
    for (long j = r.modosCalculados; j < n; ++j) {
      cuadrado[static_cast<std::size_t>(j)] = cuadrado[static_cast<std::size_t>(mayor)];
      for (long i = 0; i < n; ++i)
        r.formas[static_cast<std::size_t>(i * n + j)] = r.formas[static_cast<std::size_t>(i * n + mayor)];
    }
  }
  r.frecuencias.assign(N, 0.0);
  for (std::size_t i = 0; i < N; ++i) r.frecuencias[i] = std::sqrt(cuadrado[i]);
  for (long i = 0; i + 1 < n; ++i)
    for (long j = i + 1; j < n; ++j)
      if (r.frecuencias[static_cast<std::size_t>(i)] > r.frecuencias[static_cast<std::size_t>(j)]) {
        std::swap(r.frecuencias[static_cast<std::size_t>(i)], r.frecuencias[static_cast<std::size_t>(j)]);
        for (long k = 0; k < n; ++k)
          std::swap(r.formas[static_cast<std::size_t>(k * n + i)], r.formas[static_cast<std::size_t>(k * n + j)]);
      }
  return true;
}

void CálculoDeLoVectoresDeFormaModales(Proyecto& p, Interfaz& ui) {
  auto& s = p.Sísmico;
  if (!s.FrecuenciasIniciales) {
    ui.Mensaje("Vaya a la opción: Determinación de las frecuencias naturales, para estimar los "
               "valores  de las mismas y asi poder hallar los vectores de forma modales");
    return;
  }
  ui.Mensaje("Por Favor espere. El programa tardará pocos mínutos o puede demorar hasta más de una "
             "hora en hacer este cálculo de la matriz de formas Modales. Ello depende del número de "
             "grados de libertad.  El programa le avisa cuando termine esta parte. Presione Aceptar "
             "para continuar.");
  if (s.FormasModalesDadas &&
      !ui.Pregunta("Ha este problema ya se le determinó la matriz de formas modales ¿Desea "
                   "calcularlos de nuevo?"))
    return;
  const long n = s.NúmeroGradosLibertad;
  if (n < 1 || s.MatrizRigidezCondensada.Filas() < n || s.MatrizRigidezCondensada.Columnas() < n ||
      s.MatrizMasaCondensada.Filas() < n || s.MatrizMasaCondensada.Columnas() < n ||
      s.Frecuencia.Tamaño() < n) {
    ui.Mensaje("Faltan las matrices de rigidez y de masas de los grados de libertad o sus "
               "frecuencias iniciales. Vaya al menú 'Elementos finitos', a la sesión 'Estimación de "
               "los grados de libertad', y luego a 'Estimación de las frecuencias naturales'.",
               kTítulo);
    return;
  }
  ui.Estado("Se está en la estimación de los vectores de forma modales");
  const auto N = static_cast<std::size_t>(n);
  std::vector<double> K(N * N), M(N * N), iniciales(N);
  for (long i = 1; i <= n; ++i) {
    iniciales[static_cast<std::size_t>(i - 1)] = s.Frecuencia[i];
    for (long j = 1; j <= n; ++j) {
      K[static_cast<std::size_t>((i - 1) * n + j - 1)] = s.MatrizRigidezCondensada(i, j);
      M[static_cast<std::size_t>((i - 1) * n + j - 1)] = s.MatrizMasaCondensada(i, j);
    }
  }
  FormasModales r;
  const bool hecho = CalcularFormasModales(K, M, n, iniciales, r, ui);
  ui.Estado("");
  if (!hecho) return;
  ComprobarExcepcionesFlotantes("la estimación de los vectores de forma modales");
  s.Frecuencia.Redimensionar(n);
  s.MatrizFormasModales.Redimensionar(n, n);
  for (long i = 1; i <= n; ++i) {
    s.Frecuencia[i] = r.frecuencias[static_cast<std::size_t>(i - 1)];
    for (long m = 1; m <= n; ++m)
      s.MatrizFormasModales(i, m) = r.formas[static_cast<std::size_t>((i - 1) * n + m - 1)];
  }
  s.NúmeroFrecuencias = static_cast<DatosSísmicos::Entero>(n);
  s.ModosCalculados = static_cast<DatosSísmicos::Entero>(r.modosCalculados);
  s.FormasModalesDadas = true;
  s.FrecuenciasDefinitivas = true;
  s.FrecuenciasDadas = true;
  s.FrecuenciasIniciales = false;
  p.DatosGuardados = false;
  ui.Mensaje("Se ha terminado con la estimación de la matriz de formas modales. Ahora vaya al menú "
             "Elementos finitos y entre a la sesión Estimación de las frecuencias naturales y "
             "seleccione el modo de vibración para el cual va a hacer las estimaciones. Luego puede "
             "pasar a la obtención de los desplazamientos y esfuerzos. Seleccione el método de "
             "cálculo sísmico");
}

}  // namespace lomaterra
