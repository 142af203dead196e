#include "sismico/respuesta.h"

#include <chrono>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/historia_sismica.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "sismico/amortiguamiento.h"
#include "sismico/cargas_sismicas.h"
#include "sismico/duhamel.h"
#include "sismico/etapa_elementos.h"
#include "sismico/inversa_explicita.h"
#include "sismico/modulo_degradado.h"
#include "sismico/paso_a_paso.h"
#include "sismico/paso_desacoplado.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {

namespace {

using Entero = DatosSísmicos::Entero;

// The words that differ from one run to another.
struct Textos {
  const char* estado;
  const char* aviso;
  const char* final;
  const char* setentaYCinco;
};

const char* const kPreguntaSetentaYCinco =
    "El 75% de los nodos, tienen desplazamientos mayores a 50 cm. Por tanto, se considera que la masa de suelo o "
    "roca, que se está analizando ha perdido totalmente su resistencia al corte.  Para los siguientes registros "
    "sísmicos, los esfuerzos y desplazamientos comenzarán a ser muy elevados, indicando el colapsado total. Sin "
    "embargo:  ¿Desea que el programa continue calculando esfuerzos y desplazamientos.?.";
const char* const kPreguntaSetentaYCincoAcento =
    "El 75% de los nodos, tienen desplazamientos mayores a 50 cm. Por tanto, se considera que la masa de suelo o "
    "roca, que se está analizando ha perdido totalmente su resistencia al corte.  Para los siguientes registros "
    "sísmicos, los esfuerzos y desplazamientos comenzarán a ser muy elevados, indicando el colapsado total. Sin "
    "embargo:  ¿Desea que el programa continúe calculando esfuerzos y desplazamientos.?.";

Textos TextosDe(MétodoDeRespuesta m) {
  switch (m) {
    case MétodoDeRespuesta::Duhamel:
      return {"Se está en la estimación de los desplaz y esfuerzos (Integral Duhamel)",
              "UD DEBE ESPERAR POR FAVOR, MIENTRAS SE REALIZA LAS ESTIMACIONES DE ESFUERZOS Y DESPLAZAMIENTOS. "
              "PRESIONE ACEPTAR PARA CONTINUAR",
              "Se finalizó el cálculo de esfuerzos y desplazamientos a partir de la Integral de Duhamel.",
              kPreguntaSetentaYCinco};
    case MétodoDeRespuesta::PasoAPaso:
      return {"Se está en la estimación de los desplaz y esfuerzos (Método Paso a Paso)",
              "UD DEBE ESPERAR POR FAVOR, MIENTRAS SE REALIZA LAS ESTIMACIONES DE ESFUERZOS Y DESPLAZAMIENTOS. Sí, la "
              "malla de elementos finitos es densa, el programa demorará cierto tiempo. PRESIONE ACEPTAR PARA CONTINUAR",
              "Se finalizó el cálculo de esfuerzos y desplazamientos a partir de la ecuación de movimiemto método paso "
              "a paso.",
              kPreguntaSetentaYCincoAcento};
    case MétodoDeRespuesta::Desacoplado:
      break;
  }
  return {"Se está en la estimación de los desplaz y esfuerzos (Integral Duhamel)",
          "ESPERE POR FAVOR. SE ESTA HACIENDO LAS ESTIMACIONES DE ESFUERZOS Y DESPLAZAMIENTOS. PRESIONE ACEPTAR "
          "PARA CONTINUAR",
          "Se finalizó el cálculo de esfuerzos y desplazamientos.", kPreguntaSetentaYCinco};
}

// The gates, in their order; false after the message of the first that fails.
bool Puertas(Proyecto& p, Interfaz& ui) {
  const MallaElementos& m = p.Malla;
  const DatosSísmicos& s = p.Sísmico;
  const bool suelo = p.TipoDeMaterial == "S";
  const char* falta = nullptr;
  if (p.TipoDeAnálisis != "F")
    falta = "Ud. no está trabajando con elementos finitos";
  else if (!p.EstratosCaracterizados || p.NúmeroEstratos < 1)
    falta = "Seleccione la opción Coordenadas y Luego Caracteríticas de los estratos";
  else if (suelo && !m.CaracterísticasElásticasDadas)
    falta = "Seleccione la opción características elásticas de los estratos y dé sus valores";
  else if (suelo && !s.ParámetrosSísmicosDados)
    falta = "Seleccione la opción características sísmicas de los estratos y dé sus valores";
  else if (!m.NodosDefinidos)
    falta = "Seleccione la opción coordenadas de los nodos y dé sus valores";
  else if (!m.MaterialesAsignados)
    falta = "Seleccione la opción caracterización de los elementos y dé sus valores";
  else if (!m.NodosRestringidosDefinidos)
    falta = "Seleccione la opción nodos con restricción y dé sus valores";
  else if (!s.GradosDeLibertadEstimados)
    falta = "Vaya a la opción Determinar grados de libertad.";
  else if (!s.FormasModalesDadas)
    falta = "Ud no ha determinado los vectores de forma modales. Vaya a la Opción DETERMINACION DE LOS VECTORES DE "
            "FORMA MODALES";
  else if (s.ModoDeCálculo < 1)
    falta = "En la pantalla de frecuencias naturales ud debe seleccionar el modo de vibración para el cual va a "
            "realizar las estimaciones de los desplazamientos y esfuerzos.";
  else if (!s.FrecuenciasDadas || s.ModoElegido < 1 || s.ModoElegido > s.Frecuencia.Tamaño())
    falta = "Vaya a la opción DETERMINACION DE LAS FRECUENCIAS NATURALES";
  else if (!m.ConfirmarElementos)
    falta = "Confirme primero el número de elementos para el cálculo";
  else if (!p.ParámetrosSísmicosCompletos)
    falta = "Vaya a la opción características de los estratos para el cálculo sísmico";
  else if (!s.RegistroDado || s.NúmeroPuntosRegistro < 1)
    falta = "No existe ningún registro sísmico";
  if (falta) ui.Mensaje(falta);
  return falta == nullptr;
}

void PreguntasDePresa(Proyecto& p, Interfaz& ui, MétodoDeRespuesta método, const OpcionesRespuesta& o) {
  if (p.NúmeroPuntosFreático < 1) return;
  if (!ui.Pregunta("¿Está haciendo análisis en  PRESAS?.")) {
    p.Malla.AnálisisPresas = false;
    p.DesembalseRápido = false;
    return;
  }
  if (p.TipoDeMaterial == "S" && !p.Sísmico.OfertaEstratosUsada &&
      ui.Pregunta("Ud puede indicar en la opción 'Parámetros de los estratos para cálculo sísmico',  los materiales "
                  "que  no son determinantes en la estabilidad de la presa. Desea revisar esta opción?.")) {
    if (o.abrirEstratos) o.abrirEstratos(p, ui);
    p.Sísmico.OfertaEstratosUsada = true;
  }
  p.DesembalseRápido = ui.Pregunta(
      método == MétodoDeRespuesta::Desacoplado
          ? "¿Está haciendo análisis de DESEMBALSE RÁPIDO EN PRESAS?."
          : "¿Está haciendo análisis de DESEMBALSE RÁPIDO (sí la respuesta es NO, el análisis se hace para embalse "
            "lleno)?.");
  p.Malla.AnálisisPresas = true;
}

// The damping ratio of each element for the chosen mode, the damping matrix condensed to the free
// degrees, and the element of each free degree.
void AmortiguamientoDelModo(Proyecto& p, MatricesSísmicas& ms) {
  DatosSísmicos& s = p.Sísmico;
  const MallaElementos& m = p.Malla;
  const long NE = m.NúmeroDeElementos;
  const double w1 = s.Frecuencia.Leer(s.ModoElegido), w2 = s.Frecuencia.Leer(s.ModoElegido + 1);
  s.RelaciónAmortiguamiento.Redimensionar(NE);
  for (long e = 1; e <= NE; ++e) {
    const long mat = std::lround(m.Elemento.MaterialDeElemento.Leer(e));
    double z;
    if (p.TipoDeMaterial == "S") {
      z = RelaciónAmortiguamientoSuelo(s.ResistenciaNoDrenada.Leer(mat), s.ÍndicePlástico.Leer(mat), s.OCR.Leer(mat),
                                       p.Estrato.Cohesión.Leer(mat), p.Estrato.Fricción.Leer(mat));
    } else {
      const double nu = p.Estrato.Poisson.Leer(mat), vs = p.Estrato.VelocidadCorte.Leer(mat);
      const double h = p.Estrato.PesoUnitarioHúmedo.Leer(mat), sat = p.Estrato.PesoUnitarioSaturado.Leer(mat);
      const double gamma = h < sat ? sat - 1 : h;
      const double G = p.Roca.MétodoModuloCortante == 1 ? vs * vs * gamma / 9.81
                                                        : p.Estrato.ModuloMacizo.Leer(mat) / (2 * (1 + nu));
      z = RelaciónAmortiguamientoRoca(p.Estrato.Viscosidad.Leer(mat), G, w1);
    }
    s.RelaciónAmortiguamiento[e] = z;
    if (e <= static_cast<long>(ms.Elementos.size())) ms.Elementos[static_cast<std::size_t>(e - 1)].relación = z;
  }
  std::vector<double> global, condensada;
  MatrizAmortiguamientoRayleigh(ms.Elementos, w1, w2, ms.grados, ms.Libres, global, condensada);
  const long n = static_cast<long>(ms.Libres.size());
  s.MatrizAmortiguamientoCondensada.Redimensionar(n, n);
  for (long i = 1; i <= n; ++i)
    for (long j = 1; j <= n; ++j)
      s.MatrizAmortiguamientoCondensada(i, j) = condensada[static_cast<std::size_t>((i - 1) * n + (j - 1))];
  // Each free degree, in the numbering order, takes the first element that holds its node.
  std::vector<long> primero(static_cast<std::size_t>(m.NúmeroDeNodos + 1), 0);
  for (long e = 1; e <= NE; ++e) {
    const int nodos = m.Elemento.NodosPorElemento.Leer(e) == 6 ? 6 : 3;
    for (int k = 1; k <= nodos; ++k) {
      const long nd = std::lround(m.Elemento.NúmeroElemento.Leer(e, k));
      if (nd >= 1 && nd <= m.NúmeroDeNodos && !primero[static_cast<std::size_t>(nd)])
        primero[static_cast<std::size_t>(nd)] = e;
    }
  }
  s.ElementoDeGrado.Redimensionar(n);
  for (long i = 1; i <= n; ++i)
    s.ElementoDeGrado[i] = primero[static_cast<std::size_t>((ms.Libres[static_cast<std::size_t>(i - 1)] + 1) / 2)];
}

class Corrida {
 public:
  Corrida(Proyecto& p, Interfaz& ui, MétodoDeRespuesta método, const OpcionesRespuesta& o, MatricesSísmicas& ms)
      : p_(p), s_(p.Sísmico), ui_(ui), método_(método), o_(o), ms_(ms), textos_(TextosDe(método)) {}

  void Correr();

 private:
  void Preparar();
  void Paso(long t);
  void Cargas(long t);
  void Integrar(long t);
  void Elementos(long t);
  bool Preguntas(long t);  // false ends the loop
  void Terminar(bool completa);
  double Tiempo() const {
    if (o_.reloj) return o_.reloj();
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  }

  Proyecto& p_;
  DatosSísmicos& s_;
  Interfaz& ui_;
  MétodoDeRespuesta método_;
  const OpcionesRespuesta& o_;
  MatricesSísmicas& ms_;
  Textos textos_;

  long n_ = 0, NE_ = 0, pasos_ = 0;
  double w_ = 0, w2_ = 0, dt_ = 0, dtPrimero_ = 0;
  std::vector<double> masa_, masaCompleta_, rigidez_, condensada_, amortiguamiento_, forma_, masasModales_;
  std::vector<double> F0_, agua_, embalse_, efectivo_;
  std::vector<char> esX_, determinante_;
  std::vector<long> elementoDe_;  // 0-based element index of each free degree, -1 for none
  std::vector<double> P_, F_, FAnterior_, W_, zGrado_, uGlobal_;
  std::vector<double> u_, v_, a_;
  std::vector<EstadoDuhamel> duhamel_;
  EstadoPasoAPaso pasoAPaso_;
  EstadoDesacoplado desacoplado_;
  std::vector<ElementoRespuesta> elementos_;
  std::vector<EstadoElemento> estados_;
  std::vector<double> poros_;
  std::vector<MóduloDeGrado> móduloGrado_;
  GradosDesplazados desplazados_;
  bool corte_ = false, preguntadoCorte_ = false, preguntado75_ = false;
};

void Corrida::Preparar() {
  const MallaElementos& m = p_.Malla;
  n_ = s_.NúmeroGradosLibertad;
  NE_ = m.NúmeroDeElementos;
  pasos_ = s_.NúmeroPuntosRegistro;
  w_ = s_.Frecuencia.Leer(s_.ModoElegido);
  w2_ = s_.Frecuencia.Leer(s_.ModoElegido + 1);
  const auto N = static_cast<std::size_t>(n_);
  masa_.assign(N, 0.0);
  F0_.assign(N, 0.0), agua_.assign(N, 0.0), embalse_.assign(N, 0.0), efectivo_.assign(N, 0.0);
  esX_.assign(N, 0), determinante_.assign(N, 0), elementoDe_.assign(N, -1);
  elementos_ = PrepararElementosRespuesta(p_, ms_);
  auto vector = [](const std::vector<double>& v, long g) { return g >= 0 && g < static_cast<long>(v.size()) ? v[static_cast<std::size_t>(g)] : 0.0; };
  for (long i = 1; i <= n_; ++i) {
    const auto k = static_cast<std::size_t>(i - 1);
    const long g = ms_.Libres[k];
    masa_[k] = s_.MatrizMasaCondensada(i, i);
    F0_[k] = vector(ms_.VectorCargasCondensado, i);
    agua_[k] = vector(ms_.CargaAguaPoros, g);
    embalse_[k] = vector(ms_.CargaEmbalse, g);
    efectivo_[k] = p_.DesembalseRápido ? 0.0 : vector(ms_.EsfuerzoEfectivoNodal, g);
    esX_[k] = g % 2 == 1;
    const long e = s_.ElementoDeGrado.Leer(i);
    if (e >= 1 && e <= NE_) {
      elementoDe_[k] = e - 1;
      determinante_[k] = elementos_[static_cast<std::size_t>(e - 1)].determinanteUno;
    }
  }
  if (método_ != MétodoDeRespuesta::PasoAPaso) {
    forma_.assign(N * N, 0.0);
    for (long i = 1; i <= n_; ++i)
      for (long j = 1; j <= n_; ++j) forma_[static_cast<std::size_t>((i - 1) * n_ + j - 1)] = s_.MatrizFormasModales.Leer(i, j);
    masasModales_ = MasasModales(forma_, masa_, n_);
  } else {
    masaCompleta_.assign(N * N, 0.0);
    condensada_.assign(N * N, 0.0);
    for (long i = 1; i <= n_; ++i)
      for (long j = 1; j <= n_; ++j) {
        masaCompleta_[static_cast<std::size_t>((i - 1) * n_ + j - 1)] = s_.MatrizMasaCondensada(i, j);
        condensada_[static_cast<std::size_t>((i - 1) * n_ + j - 1)] = s_.MatrizRigidezCondensada(i, j);
      }
    rigidez_ = condensada_;
    móduloGrado_.assign(N, MóduloDeGrado{});
    if (w2_ == w_) w2_ = w_ + 0.1;
  }
  estados_.clear();
  for (const ElementoRespuesta& e : elementos_) estados_.push_back(EstadoInicial(e));
  poros_.assign(static_cast<std::size_t>(NE_), 0.0);
  W_.assign(N, 0.0), P_.assign(N, 0.0), zGrado_.assign(N, 0.0);
  u_.assign(N, 0.0), v_.assign(N, 0.0), a_.assign(N, 0.0);
  duhamel_.assign(N, EstadoDuhamel{});
  FAnterior_.assign(N, 0.0);
  uGlobal_.assign(static_cast<std::size_t>(2 * m.NúmeroDeNodos + 1), 0.0);

  // Every result array by record length, the former ones cleared.
  for (Tabla2<double>* t : {&s_.DesplazamientoSísmico, &s_.VelocidadSísmica, &s_.AceleraciónSísmica})
    t->Redimensionar(pasos_, 2L * m.NúmeroDeNodos);
  for (Tabla2<double>* t : {&s_.DeformaciónX, &s_.DeformaciónY, &s_.DeformaciónXY, &s_.EsfuerzoX, &s_.EsfuerzoY,
                            &s_.EsfuerzoXY, &s_.EsfuerzoMayor, &s_.EsfuerzoMenor, &s_.MóduloCortanteActual,
                            &s_.PoissonActual, &s_.PresiónPorosSísmica, &s_.RelaciónAmortiguamientoActual})
    t->Redimensionar(pasos_, NE_);
  s_.DesplazamientoMáximoPorPaso.Redimensionar(pasos_);
  s_.DesplazamientoMáximo = 0, s_.NodoMáximo = s_.PasoMáximo = 0;
  s_.PasosCalculados = 0;
  s_.ResultadosSísmicos = s_.CorteAlcanzado = s_.ReglaDel75 = s_.CálculoInterrumpido = false;
  s_.MétodoRespuesta = método_ == MétodoDeRespuesta::Duhamel ? 'D' : método_ == MétodoDeRespuesta::PasoAPaso ? 'P' : 'M';
  s_.SismoCalculado = s_.CálculoSísmicoHecho = false;
  s_.HistoriaNodos.clear(), s_.HistoriaElementos4.clear(), s_.HistoriaElementos3.clear();
  // A factor of safety read from the former run's stresses no longer stands.
  p_.Malla.FSSísmico = 0;
  s_.FactorSísmicoMínimo = 0, s_.PasoFactorSísmico = 0, s_.ElementoFactorSísmico = 0;

  // The first interval is read before the first time is moved off zero.
  dtPrimero_ = s_.TiempoRegistro.Leer(2) - s_.TiempoRegistro.Leer(1);
  s_.TiempoRegistro[1] = 0.0001;
}

void Corrida::Cargas(long t) {
  const double ah = s_.AceleraciónHorizontal.Leer(t), av = s_.AceleraciónVertical.Leer(t);
  const double ahA = s_.AceleraciónHorizontal.Leer(t - 1), avA = s_.AceleraciónVertical.Leer(t - 1);
  // Pore pressure of each element under shaking, by the component that dominates at the step.
  const bool vertical = std::fabs(av) > std::fabs(ah);
  for (long e = 0; e < NE_; ++e) {
    double& pp = poros_[static_cast<std::size_t>(e)];
    pp = t == 1 ? PresiónPorosPrimerPaso(elementos_[static_cast<std::size_t>(e)].presiónPoros, AceleraciónDominante(ah, av))
                : PresiónPorosPaso(pp, vertical ? av : ah, vertical ? avA : ahA);
    s_.PresiónPorosSísmica(t, e + 1) = pp;
  }
  for (long i = 0; i < n_; ++i) {
    const auto k = static_cast<std::size_t>(i);
    const double a = esX_[k] ? ah : av, aA = esX_[k] ? ahA : avA;
    W_[k] = t == 1 ? EmpujeAguaPrimerPaso(agua_[k], a) : EmpujeAguaPaso(W_[k], a, aA);
    P_[k] = CargaDelGrado(W_[k], embalse_[k], efectivo_[k], F0_[k], -masa_[k] * 9.81 * a);
    const long e = elementoDe_[k];
    zGrado_[k] = e >= 0 ? s_.RelaciónAmortiguamiento.Leer(e + 1) : 0.0;
  }
}

void Corrida::Integrar(long t) {
  const bool primero = t == 1;
  const auto N = static_cast<std::size_t>(n_);
  if (método_ == MétodoDeRespuesta::Duhamel) {
    CargasModales(forma_, masasModales_, P_, n_, F_);
    const double tiempo = s_.TiempoRegistro.Leer(t), anterior = s_.TiempoRegistro.Leer(t - 1);
    std::vector<double> q(N), qd(N);
    for (std::size_t j = 0; j < N; ++j) {
      const RespuestaModal r = PasoDuhamel(duhamel_[j], primero, w_, zGrado_[j], masa_[j], tiempo, anterior, dt_,
                                           F_[j], FAnterior_[j]);
      q[j] = r.q, qd[j] = r.qd;
    }
    FAnterior_ = F_;
    for (std::size_t i = 0; i < N; ++i) {
      double u = 0, v = 0;
      const double* fila = forma_.data() + i * N;
      for (std::size_t j = 0; j < N; ++j) u += fila[j] * q[j], v += fila[j] * qd[j];
      if (CortarDesplazamiento(u)) corte_ = true;
      a_[i] = AceleraciónNodal(primero, dt_, u, u_[i], v_[i], a_[i]);
      u_[i] = u, v_[i] = v;
    }
  } else if (método_ == MétodoDeRespuesta::PasoAPaso) {
    if (!primero) AmortiguamientoDelPaso(masaCompleta_, rigidez_, n_, zGrado_, w_, w2_, amortiguamiento_);
    DatosPasoAPaso d;
    d.n = n_, d.masa = &masaCompleta_, d.rigidez = &rigidez_, d.condensada = &condensada_;
    d.amortiguamiento = &amortiguamiento_, d.carga = &P_, d.dt = dt_, d.primero = primero;
    const FunciónInversa inversa = [](const std::vector<double>& a, long n, std::vector<double>& inv) -> long {
      // Each entry of the diagonal is tested for zero before the elimination.
      for (long i = 0; i < n; ++i)
        if (a[static_cast<std::size_t>(i * n + i)] == 0.0) return i + 1;
      return InversaGaussJordanPorBloques(a, n, inv);
    };
    const long fallo = PasoAPaso(d, pasoAPaso_, inversa);
    if (fallo != 0)
      throw FalloAritmético("la inversa de la rigidez efectiva: cero en la diagonal, fila " + std::to_string(fallo));
    u_ = pasoAPaso_.u, v_ = pasoAPaso_.v, a_ = pasoAPaso_.a;
    corte_ = pasoAPaso_.corte;
  } else {
    CargasModales(forma_, masasModales_, P_, n_, F_);
    PasoDesacoplado(forma_, n_, F_, zGrado_, w_, dt_, primero, desacoplado_);
    u_ = desacoplado_.u, v_ = desacoplado_.v, a_ = desacoplado_.a;
    corte_ = desacoplado_.límite;
  }
  // Back to the node degrees.
  for (long i = 1; i <= n_; ++i) {
    const auto k = static_cast<std::size_t>(i - 1);
    const long g = ms_.Libres[k];
    Finito(u_[k], "los desplazamientos del paso");
    Finito(v_[k], "las velocidades del paso");
    Finito(a_[k], "las aceleraciones del paso");
    s_.DesplazamientoSísmico(t, g) = u_[k];
    s_.VelocidadSísmica(t, g) = v_[k];
    s_.AceleraciónSísmica(t, g) = a_[k];
    uGlobal_[static_cast<std::size_t>(g)] = u_[k];
  }
  AnotarDesplazados(u_, determinante_, desplazados_);
}

void Corrida::Elementos(long t) {
  for (long e = 1; e <= NE_; ++e) {
    const auto k = static_cast<std::size_t>(e - 1);
    const ResultadoEtapa r = EtapaDeElemento(elementos_[k], estados_[k], uGlobal_, t == 1, dt_, w_);
    for (double x : {r.sx, r.sy, r.sxy, r.mayor, r.menor, r.G, r.nu, r.z}) Finito(x, "la etapa de los elementos");
    s_.DeformaciónX(t, e) = r.ex, s_.DeformaciónY(t, e) = r.ey, s_.DeformaciónXY(t, e) = r.exy;
    s_.EsfuerzoX(t, e) = r.sx, s_.EsfuerzoY(t, e) = r.sy, s_.EsfuerzoXY(t, e) = r.sxy;
    s_.EsfuerzoMayor(t, e) = r.mayor, s_.EsfuerzoMenor(t, e) = r.menor;
    s_.MóduloCortanteActual(t, e) = r.G, s_.PoissonActual(t, e) = r.nu;
    s_.RelaciónAmortiguamientoActual(t, e) = r.z;
    s_.RelaciónAmortiguamiento[e] = r.z;
  }
  if (método_ == MétodoDeRespuesta::PasoAPaso) {
    // The stiffness of the next step follows the modulus of each degree's element.
    for (long i = 0; i < n_; ++i) {
      const long e = elementoDe_[static_cast<std::size_t>(i)];
      if (e < 0) continue;
      const ElementoRespuesta& el = elementos_[static_cast<std::size_t>(e)];
      const EstadoElemento& st = estados_[static_cast<std::size_t>(e)];
      móduloGrado_[static_cast<std::size_t>(i)] = {st.razón, st.G, el.roca ? el.GmaxRoca : el.suelo.Gmax};
    }
    EscalarRigidez(condensada_, n_, móduloGrado_, rigidez_);
    for (double x : rigidez_) Finito(x, "la rigidez del paso siguiente");
  }
}

bool Corrida::Preguntas(long t) {
  if (corte_) s_.CorteAlcanzado = true;
  if (corte_ && !preguntadoCorte_) {
    preguntadoCorte_ = true;
    if (método_ == MétodoDeRespuesta::Desacoplado) {
      if (ui_.Pregunta("Los desplazamientos comienzan a tener valores elevados a la potencia quinta o mayor.  ¿Desea "
                       "ir a la opción de Resultados tabulados o gráficas?."))
        return false;
    } else {
      if (ui_.Pregunta("Los desplazamientos comienzan a tener valores elevados (mayores a 10^4).  ¿Desea salir del "
                       "cálculo para ir a la opción de Resultados tabulados o gráficas?."))
        return false;
      ui_.Mensaje("El programa le asignará a estos desplazamientos valores de -10000 ó +10000");
    }
  }
  if (!preguntado75_ && ReglaDelSetentaYCinco(desplazados_, n_)) {
    preguntado75_ = true;
    s_.ReglaDel75 = true;
    if (!ui_.Pregunta(textos_.setentaYCinco)) {
      ui_.Mensaje("Vaya a la opción de Resultados tabulados o gráficas.");
      return false;
    }
  }
  (void)t;
  return true;
}

void Corrida::Terminar(bool completa) {
  for (long t = 1; t <= s_.PasosCalculados; ++t)
    for (long d = 1; d <= s_.DesplazamientoSísmico.Columnas(); ++d) s_.DesplazamientoSísmico(t, d) *= 100;
  MáximosSísmicos(p_);
  s_.ResultadosSísmicos = s_.PasosCalculados > 0;
  s_.CálculoInterrumpido = !completa;
  s_.IntervaloTiempoSísmico = dtPrimero_;
  s_.ModoSísmico = s_.ModoElegido;
  if (s_.ResultadosSísmicos) HistoriaDesdeResultados(p_);
  p_.DatosGuardados = false;
}

void Corrida::Correr() {
  Preparar();
  bool completa = true;
  try {
    for (long t = 1; t <= pasos_; ++t) {
      const double inicio = Tiempo();
      dt_ = t == 1 ? dtPrimero_ : s_.TiempoRegistro.Leer(t) - s_.TiempoRegistro.Leer(t - 1);
      Cargas(t);
      Integrar(t);
      Elementos(t);
      s_.PasosCalculados = t;
      const bool seguir = Preguntas(t);
      if (t == 1 && método_ != MétodoDeRespuesta::Desacoplado && seguir)
        ui_.Mensaje("El número indicado al final de este mensaje, corresponde al tiempo en minutos que tardará el "
                    "programa en estimar los valores de desplazamientos y esfuerzos para el registro sísmico en "
                    "análisis: " +
                    Formato((Tiempo() - inicio) * static_cast<double>(pasos_ - 1) / 60, "#0.00"));
      if (!seguir) break;
      if (!ui_.Progreso(static_cast<double>(t) / static_cast<double>(pasos_),
                        "Paso " + std::to_string(t) + " de " + std::to_string(pasos_))) {
        completa = false;
        break;
      }
    }
  } catch (const FalloAritmético&) {
    ui_.Progreso(1, "");  // the progress box closes whatever ended the loop
    Terminar(false);
    ui_.Estado("");
    throw;
  }
  ui_.Progreso(1, "");
  Terminar(completa);
  if (completa) ui_.Mensaje(textos_.final);
  ui_.Estado("");
}

}  // namespace

void CorrerRespuesta(Proyecto& p, Interfaz& ui, MétodoDeRespuesta método, const OpcionesRespuesta& o) {
  if (!Puertas(p, ui)) return;
  MallaElementos& m = p.Malla;
  DatosSísmicos& s = p.Sísmico;
  if (método != MétodoDeRespuesta::Desacoplado && (m.DesplazamientosHechos || m.CálculoViscoplásticoHecho)) {
    if (!ui.Pregunta("Existe  resultados de estimaciones realizadas considerando comportamiento elasto-viscoplástico ó "
                     "comportamiento plástico.  Por tanto, esa información  se borrará (ningún archivo se borra, solo lo "
                     "cargado en memoria) ya que se va hacer estimaciones para determinado registro sísimico.  ¿Desea "
                     "continuar?."))
      return;
    for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor,
                              &m.EsfuerzoPrincipalMenor, &m.Desplazamientos, &m.FunciónFluencia})
      t->Borrar();
    m.DesplazamientosHechos = m.CálculoViscoplásticoHecho = false;
  }
  if (s.Determinante.Tamaño() < p.NúmeroEstratos) s.Determinante.RedimensionarConservando(p.NúmeroEstratos);
  for (long e = 1; e <= p.NúmeroEstratos; ++e)
    if (s.Determinante[e] == 0) s.Determinante[e] = 1;
  bool armar = !MatricesEnMemoriaVigentes(p);
  if (s.ResultadosSísmicos) {
    if (!ui.Pregunta(" Ya se realizó el cálculo sísmico. ¿Ud. desea volver a calcular?")) return;
    armar = true;
  }
  MatricesSísmicas& ms = MatricesSísmicasEnMemoria(p);
  if (armar) {
    PreguntasDePresa(p, ui, método, o);
    if (!ElementoTriangularSismico(p, ui, ms) || !CondensarMatrices(p, ui, ms)) return;
  }
  if (m.FalloInversa || !s.GradosDeLibertadEstimados) return;
  const long n = s.NúmeroGradosLibertad;
  if (n < 1 || s.MatrizFormasModales.Filas() < n || s.MatrizFormasModales.Columnas() < n || s.Frecuencia.Tamaño() < n ||
      !MatricesEnMemoriaVigentes(p)) {
    ui.Mensaje("Ud no ha determinado los vectores de forma modales. Vaya a la Opción DETERMINACION DE LOS VECTORES DE "
               "FORMA MODALES");
    return;
  }
  const Textos textos = TextosDe(método);
  ui.Estado(textos.estado);
  ui.Mensaje(textos.aviso);
  AmortiguamientoDelModo(p, ms);
  Corrida(p, ui, método, o, ms).Correr();
}

void MétodoIntegralDuhamel(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o) {
  CorrerRespuesta(p, ui, MétodoDeRespuesta::Duhamel, o);
}

void MétodoPasoAPasoEcMovimientoSinDesacoplar(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o) {
  CorrerRespuesta(p, ui, MétodoDeRespuesta::PasoAPaso, o);
}

void PasoAPasoDesacoplado(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o) {
  CorrerRespuesta(p, ui, MétodoDeRespuesta::Desacoplado, o);
}

}  // namespace lomaterra
