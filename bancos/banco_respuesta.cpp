// Whole response runs as the menu commands run them: a block of linear triangles with its base
// held (12 × 8 cells, 208 free degrees, 192 elements), assembled and condensed by the seismic
// assembly, a sine record of 2,000 steps (and 500, to see that the time per step does not grow
// with the steps done), by the Duhamel integral and by the step-by-step integration. The mode
// shapes are a mass-normalised sine basis: the work of a step does not depend on their values.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

#include "elementos/malla_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "sismico/respuesta.h"
#include "sismico/rigidez_sismica.h"

namespace {

using namespace lomaterra;

// Goes on through every question: No to the cut of large displacements, Yes to the 75% rule.
class InterfazSigue : public InterfazGuionada {
 protected:
  bool HacerPregunta(const std::string& texto, const std::string& título) override {
    InterfazGuionada::HacerPregunta(texto, título);
    return texto.rfind("El 75%", 0) == 0;
  }
};

Proyecto Bloque(long pasos) {
  const long columnas = 12, filas = 8;
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 24, 16, 20000, 0.3, 1.9);
  pruebas::MallaRejilla(p, columnas, filas, 2, 2);
  MallaElementos& m = p.Malla;
  auto& r = m.NodoConRestricción;
  r.Redimensionar(m.NúmeroNodosConRestricción = static_cast<std::int32_t>(columnas + 1));
  for (long i = 0; i <= columnas; ++i)
    r.NodoRestringido[i + 1] = static_cast<double>(1 + i * (filas + 1)), r.RestricciónX[i + 1] = r.RestricciónY[i + 1] = "N";
  m.NodosRestringidosDefinidos = p.EstratosCaracterizados = true;
  p.Estrato.Cohesión[1] = 2, p.Estrato.Fricción[1] = 30, p.Estrato.CoeficienteKo[1] = 0.5;
  DatosSísmicos& s = p.Sísmico;
  s.ParámetrosSísmicosDados = s.RegistroDado = true;
  s.MétodoGmax = 1;
  for (auto* t : {&s.VelocidadOndaCorte, &s.OCR, &s.ResistenciaNoDrenada, &s.ÍndicePlástico}) t->Redimensionar(1);
  s.VelocidadOndaCorte[1] = 200, s.OCR[1] = 1, s.ÍndicePlástico[1] = 20;
  s.Determinante.Redimensionar(1);
  s.NúmeroPuntosRegistro = static_cast<DatosSísmicos::Entero>(pasos);
  for (auto* t : {&s.TiempoRegistro, &s.AceleraciónHorizontal, &s.AceleraciónVertical}) t->Redimensionar(pasos);
  for (long k = 1; k <= pasos; ++k) {
    s.TiempoRegistro[k] = 0.01 * static_cast<double>(k - 1);
    s.AceleraciónHorizontal[k] = 0.05 * std::sin(0.3 * static_cast<double>(k));
    s.AceleraciónVertical[k] = 0.02 * std::sin(0.2 * static_cast<double>(k));
  }
  InterfazGuionada ui;
  DeterminarGradosDeLibertad(p, ui, MatricesSísmicasEnMemoria(p));
  const long n = s.NúmeroGradosLibertad;
  s.MatrizFormasModales.Redimensionar(n, n);
  s.Frecuencia.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    s.Frecuencia[i] = 10.0 + static_cast<double>(i);
    for (long j = 1; j <= n; ++j)
      s.MatrizFormasModales(i, j) = std::sqrt(2.0 / static_cast<double>(n + 1)) *
                                    std::sin(static_cast<double>(i * j) * 3.14159265358979 / static_cast<double>(n + 1)) /
                                    std::sqrt(s.MatrizMasaCondensada(i, i));
  }
  s.FormasModalesDadas = s.FrecuenciasDadas = true;
  s.ModoDeCálculo = s.ModoElegido = 1;
  return p;
}

void Corrida(benchmark::State& estado, MétodoDeRespuesta método) {
  const long pasos = estado.range(0);
  const Proyecto base = Bloque(pasos);
  for (auto _ : estado) {
    estado.PauseTiming();
    Proyecto p = base;
    InterfazSigue ui;
    estado.ResumeTiming();
    CorrerRespuesta(p, ui, método);
    benchmark::DoNotOptimize(p.Sísmico.DesplazamientoMáximo);
    if (p.Sísmico.PasosCalculados != pasos) estado.SkipWithError("la corrida no llegó al último paso");
  }
  estado.counters["grados"] = base.Sísmico.NúmeroGradosLibertad;
  estado.counters["s_por_paso"] =
      benchmark::Counter(static_cast<double>(pasos), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_Duhamel(benchmark::State& e) { Corrida(e, MétodoDeRespuesta::Duhamel); }
void BM_PasoAPaso(benchmark::State& e) { Corrida(e, MétodoDeRespuesta::PasoAPaso); }
BENCHMARK(BM_Duhamel)->Arg(500)->Arg(2000)->Unit(benchmark::kSecond)->Iterations(1);
BENCHMARK(BM_PasoAPaso)->Arg(500)->Arg(2000)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
