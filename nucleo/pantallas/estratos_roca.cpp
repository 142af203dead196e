#include "pantallas/estratos_roca.h"

#include <algorithm>

#include "equilibrio/estratos/hoek_brown.h"
#include "pantallas/form5.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr const char* kCajasFila[] = {"TextoMIntacta",
                                      "TextoGSI",
                                      "TextoMMacizo",
                                      "TextoSMacizo",
                                      "TextoPesoUnitarioHúmedo",
                                      "TextoPesoUnitarioSaturado",
                                      "TextoCompresiónSimple",
                                      "TextoVelocidadCorte",
                                      "TextoVelocidadLongitudinal",
                                      "TextoPoisson",
                                      "TextoViscosidad"};

constexpr const char* kTítuloEstratos = "Características de los estratos";

const char* const kNotaRoca =
    "Nota: Si ud está trabajando por los métodos de equilibrio límite , puede obviar dar los datos "
    "de velocidades de onda, coeficiente de poisson y viscosidad.\n"
    "Nota: Si el usuario inserta un valor de viscosidad de cero, el programa  le asignará a este "
    "parámetro, el valor de la resistencia a la compresión simple  de la masa rocosa estimado  por "
    "el programa .\n"
    "Nota: Con la altura H igual a cero, la cohesión y la fricción equivalentes se estiman con las "
    "fórmulas empíricas de GSI, mi y compresión simple, sin tomar en cuenta el factor D.";

double Columna(const PantallaEstratosRoca::Fila& f, int c) {
  const double v[] = {f.mi,
                      f.GSI,
                      f.m,
                      f.s,
                      f.húmedo,
                      f.saturado,
                      f.σc,
                      f.velocidadCorte,
                      f.velocidadLongitudinal,
                      f.poisson,
                      f.viscosidad};
  return v[c];
}

const char* FormatoColumna(int c) {
  if (c == 0 || c == 2) return "#0.000";
  if (c == 1 || c == 3) return "#0.00000";
  return "#0.00";
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Características de los estratos en macizos rocosos

PantallaEstratosRoca::PantallaEstratosRoca(Proyecto& p) : p_(p) {
  nombre = "EstratosEnMacizosRocosos";
  título = "Características de los estratos en macizos rocosos";
  nota = kNotaRoca;
  campos = {
      {"TextoSueloRoca", "Suelo o roca <R>:", "",
       "Para el análisis en rocas introduzca la letra 'R'"},
      {"TextoTipoDeObra", "Tipo de obra <O/S>:", "", "'O' para túneles y 'S' para taludes"},
      {"TextoFactorPerturbación", "Factor D:", "",
       "Factor D: Factor por perturbación de la roca por voladura, por trabajo mecanizado o "
       "manual."},
      {"TextoAlturaH", "Altura H (m):", "", "Altura H: Altura del talud o profundidad del túnel."},
      {"TextoMIntacta", "mi:", "", "Constante que depende de las propiedades de la roca  intacta."},
      {"TextoGSI", "GSI:", "", "GSI: Indice de calidad del macizo rocoso."},
      {"TextoMMacizo", "m del macizo:", "", ""},
      {"TextoSMacizo", "s del macizo:", "", ""},
      {"TextoPesoUnitarioHúmedo", "Peso unitario húmedo (ton/m3):", "", ""},
      {"TextoPesoUnitarioSaturado", "Peso unitario saturado (ton/m3):", "", ""},
      {"TextoCompresiónSimple", "Compresión simple de la roca intacta (kg/cm2):", "", ""},
      {"TextoVelocidadCorte", "Velocidad de la onda de corte Cs (m/s):", "", ""},
      {"TextoVelocidadLongitudinal", "Velocidad de la onda longitudinal Cp (m/s):", "", ""},
      {"TextoPoisson", "Coeficiente de Poisson:", "", ""},
      {"TextoViscosidad", "Viscosidad (ton.s/m2):", "", ""},
      {"TextoEstadoPlano", "Estado plano <2>:", "", "<2>: Deformación plana."},
      {"TextoEspesorConsiderado", "Espesor considerado (m):", "", ""},
      {"TextoMétodoModuloCortante", "Módulo cortante <1/2>:", "",
       "<1> a partir de la velocidad de la onda de corte, <2> a partir del módulo del macizo y del "
       "coeficiente de Poisson"},
      {"TextoEspesorDeSedimentos", "Espesor de sedimentos (m):", "", ""},
  };
  ListaPantalla l;
  l.nombre = "CaracterísticasEstratosEnRoca";
  l.columnas = {"Estrato",       "mi",        "GSI", "m",  "s",       "P.U. húmedo",
                "P.U. saturado", "C. simple", "Cs",  "Cp", "Poisson", "Viscosidad"};
  l.alSeleccionar = [this](Interfaz& ui) { Seleccionar(ui); };
  listas.push_back(std::move(l));
  botones.push_back({"BotónModificar", "Modificar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

bool PantallaEstratosRoca::ElementosFinitos() const {
  return Mayúsculas(p_.TipoDeAnálisis) == "F";
}

void PantallaEstratosRoca::Mostrar() {
  auto& l = lista("CaracterísticasEstratosEnRoca");
  l.filas.clear();
  for (std::size_t i = 0; i < filas_.size(); ++i) {
    std::vector<std::string> fila{std::to_string(i + 1)};
    for (int c = 0; c < 11; ++c)
      fila.push_back(filas_[i].completa ? Formato(Columna(filas_[i], c), FormatoColumna(c)) : "");
    l.filas.push_back(std::move(fila));
  }
}

void PantallaEstratosRoca::Activar(Interfaz&) {
  filas_.assign(static_cast<std::size_t>(std::max<int>(p_.NúmeroEstratos, 0)), Fila{});
  const auto& e = p_.Estrato;
  for (int s = 1; s <= p_.NúmeroEstratos; ++s) {
    if (p_.TipoDeMaterial != "R" || !(e.PesoUnitarioHúmedo.Leer(s) > 0)) continue;
    Fila& f = filas_[static_cast<std::size_t>(s - 1)];
    f.completa = true;
    f.mi = e.m_intacta.Leer(s);
    f.GSI = e.Parámetro_GSI.Leer(s);
    f.m = e.m_macizo.Leer(s);
    f.s = e.s_macizo.Leer(s);
    f.húmedo = e.PesoUnitarioHúmedo.Leer(s);
    f.saturado = e.PesoUnitarioSaturado.Leer(s);
    f.σc = e.C_Simple.Leer(s);
    f.velocidadCorte = e.VelocidadCorte.Leer(s);
    f.velocidadLongitudinal = e.VelocidadLongitudinal.Leer(s);
    f.poisson = e.Poisson.Leer(s);
    f.viscosidad = e.Viscosidad.Leer(s);
  }
  lista("CaracterísticasEstratosEnRoca").seleccionada = 0;
  Mostrar();
  const auto& r = p_.Roca;
  texto("TextoSueloRoca") = p_.TipoDeMaterial;
  texto("TextoTipoDeObra") = r.TipoDeObra;
  texto("TextoFactorPerturbación") = NúmeroATexto(r.FactorPerturbación);
  texto("TextoAlturaH") = NúmeroATexto(r.AlturaH);
  texto("TextoEstadoPlano") = std::to_string(r.EstadoPlano);
  texto("TextoEspesorConsiderado") = NúmeroATexto(r.EspesorConsiderado);
  texto("TextoMétodoModuloCortante") = std::to_string(r.MétodoModuloCortante);
  texto("TextoEspesorDeSedimentos") = NúmeroATexto(r.EspesorSedimentos);
  for (const char* caja : kCajasFila) texto(caja).clear();
}

void PantallaEstratosRoca::Seleccionar(Interfaz&) {
  const int i = lista("CaracterísticasEstratosEnRoca").seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  const Fila& f = filas_[static_cast<std::size_t>(i - 1)];
  for (int c = 0; c < 11; ++c)
    texto(kCajasFila[c]) = f.completa ? NúmeroATexto(Columna(f, c)) : std::string();
  // m and s of a new row are estimated by Modificar: the boxes start at 0.
  if (!f.completa) texto("TextoMMacizo") = texto("TextoSMacizo") = "0";
}

void PantallaEstratosRoca::Modificar(Interfaz& ui) {
  const int i = lista("CaracterísticasEstratosEnRoca").seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Seleccione primero en la lista el estrato al que le va a dar las características.");
    return;
  }
  auto número = [&](const char* caja) { return ANúmero(texto(caja)); };
  if (!EsNúmero(texto("TextoGSI"))) {
    ui.Mensaje("Debe introducir un número para el índice de calidad de la roca");
    return;
  }
  const double GSI = número("TextoGSI");
  if (GSI < 0 || GSI > 100) {
    ui.Mensaje("Debe introducir el valor apropiado del índice de calidad de la roca GSI");
    return;
  }
  const struct {
    const char* caja;
    const char* mensaje;
  } kNuméricos[] = {
      {"TextoMIntacta", "Debe introducir un número para este parámetro"},
      {"TextoMMacizo", "Debe introducir un número para el parámetro 'm'"},
      {"TextoSMacizo", "Debe introducir un número para el parámetro 's'"},
      {"TextoPesoUnitarioHúmedo", "Debe introducir un número en el peso unitario húmedo"},
      {"TextoPesoUnitarioSaturado", "Debe introducir un número en el peso unitario saturado"},
      {"TextoCompresiónSimple",
       "Debe introducir un número para la resistencia a la compresión simple"},
  };
  for (const auto& c : kNuméricos)
    if (!EsNúmero(texto(c.caja))) {
      ui.Mensaje(c.mensaje);
      return;
    }
  // mi enters a logarithm and σc divides the strength of the mass: both must be above zero.
  if (!(número("TextoMIntacta") > 0)) {
    ui.Mensaje("El valor de mi de la roca intacta debe ser mayor que cero.");
    return;
  }
  if (!(número("TextoCompresiónSimple") > 0)) {
    ui.Mensaje("La resistencia a la compresión simple de la roca intacta debe ser mayor que cero.");
    return;
  }
  Fila nueva;
  if (ElementosFinitos()) {
    if (!EsNúmero(texto("TextoVelocidadCorte")) || !EsNúmero(texto("TextoVelocidadLongitudinal"))) {
      ui.Mensaje("Debe dar el valor de la velocidad de la onda de corte.");
      return;
    }
    if (número("TextoVelocidadCorte") > número("TextoVelocidadLongitudinal")) {
      ui.Mensaje(
          "La velocidad de la onda de corte es menor que la velocidad de la onda longitudinal.");
      return;
    }
    if (!EsNúmero(texto("TextoPoisson"))) {
      ui.Mensaje("Debe dar el valor del coeficiente de poisson.");
      return;
    }
    if (!EsNúmero(texto("TextoViscosidad"))) {
      ui.Mensaje("Debe introducir un número para la viscosidad de la roca, incluyendo el cero.");
      return;
    }
  }
  // In limit equilibrium the wave data may be left out: what is not a number counts as 0.
  auto opcional = [&](const char* caja) { return EsNúmero(texto(caja)) ? número(caja) : 0.0; };
  nueva.completa = true;
  nueva.mi = número("TextoMIntacta");
  nueva.GSI = GSI;
  nueva.húmedo = número("TextoPesoUnitarioHúmedo");
  nueva.saturado = número("TextoPesoUnitarioSaturado");
  nueva.σc = número("TextoCompresiónSimple");
  nueva.velocidadCorte = opcional("TextoVelocidadCorte");
  nueva.velocidadLongitudinal = opcional("TextoVelocidadLongitudinal");
  nueva.poisson = opcional("TextoPoisson");
  nueva.viscosidad = opcional("TextoViscosidad");
  if (p_.Roca.EnsayosDados) {
    // m and s fitted on the laboratory screen are kept as the boxes show them.
    nueva.m = número("TextoMMacizo");
    nueva.s = número("TextoSMacizo");
  } else {
    const ConstantesMacizo c = EstimaciónInicial(nueva.mi, GSI);
    nueva.m = c.m;
    nueva.s = c.s;
  }
  filas_[static_cast<std::size_t>(i - 1)] = nueva;
  texto("TextoMMacizo") = NúmeroATexto(nueva.m);
  texto("TextoSMacizo") = NúmeroATexto(nueva.s);
  p_.DatosGuardados = false;  // the row's data have changed
  Mostrar();
}

void PantallaEstratosRoca::Aceptar(Interfaz& ui) {
  const bool fe = ElementosFinitos();
  auto esNúmero = [&](const char* caja) { return EsNúmero(texto(caja)); };
  auto número = [&](const char* caja) { return ANúmero(texto(caja)); };
  if (Mayúsculas(Recortar(texto("TextoSueloRoca"))) != "R") {
    ui.Mensaje("Ud va hacer un análisis en ROCA y debe introducir la letra  'R'");
    return;
  }
  std::string obra = Mayúsculas(Recortar(texto("TextoTipoDeObra")));
  if (fe && obra != "O" && obra != "S") {
    ui.Mensaje("Presione la letra 'O' para  Túneles y  la letra 'S' para taludes.");
    return;
  }
  if (!fe && obra != "O") obra = "S";
  if (!esNúmero("TextoFactorPerturbación")) {
    ui.Mensaje(
        "Debe introducir un el valor apropiado para el factor de corrección por perturbación de la "
        "roca, el cual varía entre 0 y 1");
    return;
  }
  const double D = número("TextoFactorPerturbación");
  if (D < 0 || D > 1) {
    ui.Mensaje(
        "El factor de perturbación debe estar entre cero y uno, y es parámetro requerido en las "
        "estimaciones de esfuerzos.");
    return;
  }
  if (!esNúmero("TextoAlturaH")) {
    ui.Mensaje(
        "Debe introducir un valor apropiado para la altura del talud o profundidad del túnel");
    return;
  }
  const double H = número("TextoAlturaH");
  auto& roca = p_.Roca;
  Entero estadoPlano = roca.EstadoPlano, métodoG = roca.MétodoModuloCortante;
  double espesor = roca.EspesorConsiderado, sedimentos = roca.EspesorSedimentos;
  if (fe) {
    if (!esNúmero("TextoEstadoPlano") || número("TextoEstadoPlano") != 2) {
      ui.Mensaje("Debe introducir el número  <2>: Deformación plana.");
      return;
    }
    if (!esNúmero("TextoEspesorConsiderado")) {
      ui.Mensaje(
          "Debe dar un número entero para tomar en cuenta el espesor donde va hacer el análisis");
      return;
    }
    if (número("TextoEspesorConsiderado") == 0) {
      ui.Mensaje(
          "Debe dar un valor de espesor considerado para el análisis por deformación plana (1 m es "
          "común).");
      return;
    }
    const double g =
        esNúmero("TextoMétodoModuloCortante") ? número("TextoMétodoModuloCortante") : 0;
    if (g != 1 && g != 2) {
      ui.Mensaje("Debe introducir el número <1> o <2> ");
      return;
    }
    if (!esNúmero("TextoEspesorDeSedimentos")) {
      ui.Mensaje(
          "Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por el "
          "geologo.");
      return;
    }
    if (!(H > 0)) {
      ui.Mensaje(
          "El valor de esta altura es requerida. Debe dar el valor de la altura del talud o carga "
          "de "
          "roca sobre techo del túnel.");
      return;
    }
    estadoPlano = 2;
    espesor = número("TextoEspesorConsiderado");
    métodoG = static_cast<Entero>(g);
    sedimentos = número("TextoEspesorDeSedimentos");
  }

  for (const Fila& f : filas_) {
    const char* falta = nullptr;
    if (!f.completa)
      falta =
          "Faltan datos. Debe introducir las características para todos y cada uno de los estratos";
    else if (!(f.GSI > 0) || !(f.húmedo > 0) || !(f.saturado > 0) || !(f.σc > 0))
      falta =
          "Faltan datos. Debe introducir el GSI, los pesos unitarios y compresión simple para "
          "todos y "
          "cada uno de los estratos";
    else if (fe && (!(f.velocidadCorte > 0) || !(f.velocidadLongitudinal > 0) || !(f.poisson > 0)))
      falta =
          "Faltan datos. Debe introducir las características para todos los estratos:  Las "
          "velocidades de la onda, coeficiente de poisson,  en caso de análisis sísmico. En el "
          "caso "
          "de análisis sismico la viscosidad puede ser cero.";
    if (falta) {
      p_.CaracterísticasRocaCompletas = false;
      ui.Mensaje(falta, kTítuloEstratos);
      return;
    }
  }

  // Every stratum is computed before anything is stored: a fault leaves the strata as they were.
  struct Resultado {
    double m, s, ko, resistencia, módulo, viscosidad, cohesión, fricción, corte;
  };
  std::vector<Resultado> res;
  double σ3max = 0;
  // The net below must see this arithmetic only, not what the window did while the screen waited.
  LimpiarExcepcionesFlotantes();
  for (std::size_t k = 0; k < filas_.size(); ++k) {
    const Fila& f = filas_[k];
    Resultado r{};
    r.m = f.m;
    r.s = f.s;
    if (!roca.EnsayosDados) {
      const ConstantesMacizo c = ConstantesHoekBrown(f.mi, f.GSI, D);
      r.m = c.m;
      r.s = c.s;
    }
    r.ko = Div(f.poisson, 1 - f.poisson, "el coeficiente Ko (Poisson igual a uno)");
    const double a = ExponenteHoekBrown(f.GSI);
    r.resistencia = ResistenciaGlobalMacizo(r.m, r.s, a, f.σc);
    r.viscosidad = fe && f.viscosidad == 0 ? r.resistencia : f.viscosidad;
    r.módulo = MóduloDeformaciónMacizo(f.σc, f.GSI, D);
    double relación = 0;
    if (H > 0) {
      if (fe && obra == "O")
        σ3max = EsfuerzoConfinamientoMáximo(r.resistencia, H, f.húmedo, true);
      else if (obra == "S")
        σ3max = EsfuerzoConfinamientoMáximo(r.resistencia, H, f.húmedo, false);
      relación = σ3max / f.σc;
    }
    const CohesiónFricción cf = H > 0 ? EquivalenteMacizo(r.m, r.s, a, f.σc, relación)
                                      : EquivalenteEmpírico(f.mi, f.σc, f.GSI);
    r.cohesión = cf.cohesión;
    r.fricción = cf.fricción;
    if (r.fricción == 0)
      throw FalloAritmético(
          "división por cero en la resistencia al corte del macizo del estrato " +
          std::to_string(k + 1) +
          ": su fricción equivalente es cero (GSI y mi demasiado bajos); revise los datos del "
          "estrato");
    r.corte = ResistenciaCorteMacizo(r.m, r.s, f.σc, r.fricción);
    res.push_back(r);
  }
  ComprobarExcepcionesFlotantes("las características de los estratos en roca");

  auto& e = p_.Estrato;
  const long n = static_cast<long>(filas_.size());
  e.RedimensionarConservando(n);
  for (long s = 1; s <= n; ++s) {
    const Fila& f = filas_[static_cast<std::size_t>(s - 1)];
    const Resultado& r = res[static_cast<std::size_t>(s - 1)];
    e.m_intacta[s] = f.mi;
    e.Parámetro_GSI[s] = f.GSI;
    e.m_macizo[s] = r.m;
    e.s_macizo[s] = r.s;
    e.PesoUnitarioHúmedo[s] = f.húmedo;
    e.PesoUnitarioSaturado[s] = f.saturado;
    e.C_Simple[s] = f.σc;
    e.VelocidadCorte[s] = f.velocidadCorte;
    e.VelocidadLongitudinal[s] = f.velocidadLongitudinal;
    e.Poisson[s] = f.poisson;
    e.Viscosidad[s] = r.viscosidad;
    e.CoeficienteKo[s] = r.ko;
    e.ResistenciaMacizo[s] = r.resistencia;
    e.ModuloMacizo[s] = r.módulo;
    e.Cohesión[s] = r.cohesión;
    e.Fricción[s] = r.fricción;
    e.ResistenciaCorteMacizo[s] = r.corte;
  }
  p_.CaracterísticasRocaCompletas = true;
  p_.NúmeroEstratosCaracterizados = p_.NúmeroEstratos;
  p_.EstratosCaracterizados = true;
  p_.TipoDeMaterial = "R";
  roca.TipoDeObra = obra;
  roca.FactorPerturbación = D;
  roca.AlturaH = H;
  roca.EstadoPlano = estadoPlano;
  roca.EspesorConsiderado = espesor;
  roca.MétodoModuloCortante = métodoG;
  roca.EspesorSedimentos = sedimentos;
  p_.DatosGuardados = false;
  cerrada = true;
}

void PantallaEstratosRoca::Cancelar(Interfaz& ui) {
  if (ui.Pregunta("No desea archivar las características de los estratos?")) cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Laboratory fit

PantallaEnsayosRoca::PantallaEnsayosRoca(Proyecto& p) : p_(p) {
  nombre = "EnsayosDeLaboratorioRoca";
  título = "Esfuerzos principales de los ensayos de laboratorio";
  nota =
      "Seleccione un estrato y agregue los pares de esfuerzos principales de rotura (ton/m2). Con "
      "Aceptar se ajustan m y s del criterio de Hoek y Brown de cada estrato por mínimos "
      "cuadrados.";
  campos = {
      {"TextoSigma1", "Esfuerzo principal mayor sigma 1 (ton/m2):", "", ""},
      {"TextoSigma3", "Esfuerzo principal menor sigma 3 (ton/m2):", "", ""},
  };
  ListaPantalla estratos;
  estratos.nombre = "ListaDeEstratos";
  estratos.columnas = {"Estrato", "Pares"};
  estratos.alSeleccionar = [this](Interfaz& ui) { SeleccionarEstrato(ui); };
  listas.push_back(std::move(estratos));
  ListaPantalla ensayos;
  ensayos.nombre = "ListaDeEnsayos";
  ensayos.columnas = {"Par", "Sigma 1", "Sigma 3"};
  listas.push_back(std::move(ensayos));
  botones.push_back({"BotónAgregar", "Agregar", [this](Interfaz& ui) { Agregar(ui); }});
  botones.push_back({"BotónEliminar", "Eliminar", [this](Interfaz& ui) { Eliminar(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void PantallaEnsayosRoca::Mostrar() {
  auto& le = lista("ListaDeEstratos");
  le.filas.clear();
  for (std::size_t s = 0; s < pares_.size(); ++s)
    le.filas.push_back({std::to_string(s + 1), std::to_string(pares_[s].size())});
  le.seleccionada = alFrente_;
  auto& lp = lista("ListaDeEnsayos");
  lp.filas.clear();
  if (alFrente_ >= 1) {
    const auto& ps = pares_[static_cast<std::size_t>(alFrente_ - 1)];
    for (std::size_t j = 0; j < ps.size(); ++j)
      lp.filas.push_back(
          {std::to_string(j + 1), Formato(ps[j].σ1, "#0.00"), Formato(ps[j].σ3, "#0.00")});
  }
  if (lp.seleccionada > static_cast<int>(lp.filas.size())) lp.seleccionada = 0;
}

void PantallaEnsayosRoca::Activar(Interfaz& ui) {
  if (p_.NúmeroEstratos <= 0) {
    ui.Mensaje(kMensajeNoHayEstratos);
    cerrada = true;
    return;
  }
  const auto& r = p_.Roca;
  pares_.assign(static_cast<std::size_t>(p_.NúmeroEstratos), {});
  if (p_.TipoDeMaterial == "R" && r.EnsayosDados)
    for (int s = 1; s <= p_.NúmeroEstratos; ++s)
      for (long j = 1; j <= r.PuntosEnsayo.Leer(s); ++j)
        pares_[static_cast<std::size_t>(s - 1)].push_back(
            {r.EnsayoSigma1.Leer(s, j), r.EnsayoSigma3.Leer(s, j)});
  alFrente_ = 0;  // no stratum in front until one is chosen in the list
  lista("ListaDeEnsayos").seleccionada = 0;
  texto("TextoSigma1").clear();
  texto("TextoSigma3").clear();
  Mostrar();
}

void PantallaEnsayosRoca::SeleccionarEstrato(Interfaz&) {
  const int s = lista("ListaDeEstratos").seleccionada;
  if (s >= 1 && s <= static_cast<int>(pares_.size())) alFrente_ = s;
  lista("ListaDeEnsayos").seleccionada = 0;
  Mostrar();
}

void PantallaEnsayosRoca::Agregar(Interfaz& ui) {
  if (alFrente_ < 1) {
    ui.Mensaje("Seleccione primero en la lista el estrato al que pertenecen los ensayos.");
    return;
  }
  if (!EsNúmero(texto("TextoSigma1"))) {
    ui.Mensaje("Debe introducir un número para el esfuerzo principal sigma '1'");
    return;
  }
  if (!EsNúmero(texto("TextoSigma3"))) {
    ui.Mensaje("Debe introducir un número para el esfuerzo principal sigma '3'");
    return;
  }
  auto& ps = pares_[static_cast<std::size_t>(alFrente_ - 1)];
  const Par nuevo{ANúmero(texto("TextoSigma1")), ANúmero(texto("TextoSigma3"))};
  const auto dónde = std::upper_bound(ps.begin(), ps.end(), nuevo,
                                      [](const Par& a, const Par& b) { return a.σ3 < b.σ3; });
  ps.insert(dónde, nuevo);
  texto("TextoSigma1").clear();
  texto("TextoSigma3").clear();
  Mostrar();
}

void PantallaEnsayosRoca::Eliminar(Interfaz& ui) {
  const int j = lista("ListaDeEnsayos").seleccionada;
  if (alFrente_ < 1 || j < 1) {
    ui.Mensaje("Seleccione primero en la lista el par de esfuerzos que desea eliminar.");
    return;
  }
  auto& ps = pares_[static_cast<std::size_t>(alFrente_ - 1)];
  if (j <= static_cast<int>(ps.size())) ps.erase(ps.begin() + (j - 1));
  lista("ListaDeEnsayos").seleccionada = 0;
  Mostrar();
}

void PantallaEnsayosRoca::Aceptar(Interfaz& ui) {
  if (pares_.size() == 1 && alFrente_ != 1) {
    ui.Mensaje("Por favor ponga al frente los datos del estrato 1");
    return;
  }
  for (std::size_t s = 0; s < pares_.size(); ++s)
    if (pares_[s].size() < 2) {
      ui.Mensaje("Ud. no ha dado los suficientes puntos para el estrato No " +
                 std::to_string(s + 1));
      return;
    }
  for (std::size_t s = 0; s < pares_.size(); ++s)
    if (!(p_.Estrato.C_Simple.Leer(static_cast<long>(s + 1)) > 0)) {
      ui.Mensaje("Falta la resistencia a la compresión simple del estrato No " +
                 std::to_string(s + 1) +
                 ". Désela primero en la opción 'Sin datos de pruebas de laboratorio'.");
      return;
    }
  // The fits first, with their questions; the strata change only when all have been made.
  std::vector<AjusteEnsayo> ajustes;
  for (std::size_t s = 0; s < pares_.size(); ++s) {
    const bool intacta = ui.Pregunta("Los datos corresponden a roca intacta para el estrato " +
                                     std::to_string(s + 1));
    std::vector<double> σ1, σ3;
    for (const Par& q : pares_[s]) {
      σ1.push_back(q.σ1);
      σ3.push_back(q.σ3);
    }
    try {
      ajustes.push_back(
          AjustarEnsayos(σ1, σ3, p_.Estrato.C_Simple.Leer(static_cast<long>(s + 1)), intacta));
    } catch (const FalloAritmético& f) {
      throw FalloAritmético(std::string(f.what()) + " (estrato " + std::to_string(s + 1) + ")");
    }
  }
  auto& r = p_.Roca;
  const long n = static_cast<long>(pares_.size());
  long mayor = 0;
  for (const auto& ps : pares_) mayor = std::max<long>(mayor, static_cast<long>(ps.size()));
  r.PuntosEnsayo.Redimensionar(n);
  r.EnsayoSigma1.Redimensionar(n, mayor);
  r.EnsayoSigma3.Redimensionar(n, mayor);
  p_.Estrato.RedimensionarConservando(std::max<long>(n, p_.Estrato.m_macizo.Tamaño()));
  for (long s = 1; s <= n; ++s) {
    const auto& ps = pares_[static_cast<std::size_t>(s - 1)];
    r.PuntosEnsayo[s] = static_cast<Entero>(ps.size());
    for (std::size_t j = 0; j < ps.size(); ++j) {
      r.EnsayoSigma1(s, static_cast<long>(j + 1)) = ps[j].σ1;
      r.EnsayoSigma3(s, static_cast<long>(j + 1)) = ps[j].σ3;
    }
    p_.Estrato.m_macizo[s] = ajustes[static_cast<std::size_t>(s - 1)].m;
    p_.Estrato.s_macizo[s] = ajustes[static_cast<std::size_t>(s - 1)].s;
  }
  r.EnsayosDados = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void PantallaEnsayosRoca::Cancelar(Interfaz& ui) {
  if (ui.Pregunta("No desea archivar los datos de los ensayos de laboratorio?")) cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Commands

void ParámetrosCaracterizaciónRocaSinLaboratorio(Proyecto& p, Interfaz& ui) {
  if (p.NúmeroEstratos <= 0) {
    ui.Mensaje(kMensajeNoHayEstratos);
    return;
  }
  PantallaEstratosRoca pantalla(p);
  ui.Abrir(pantalla);
}

void ParámetrosDeCaracterizaciónRocaConLaboratorio(Proyecto& p, Interfaz& ui) {
  PantallaEnsayosRoca pantalla(p);
  ui.Abrir(pantalla);
}

}  // namespace lomaterra
