#include "pantallas/estratos_sismicos.h"

#include <algorithm>

#include "pantallas/form5.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr const char* kLista = "CaracterísticasEstratos";
constexpr const char* kCajas[] = {"TextoVelocidadOndaDeCorte",         "TextoDistorsiónCortante",
                                  "TextoRelaciónDeVacíos",             "TextoResistenciaNoDrenada",
                                  "TextoIndicePlástico",               "TextoRelaciónDeSobreconsolidación",
                                  "TextoEstratoDeterminateEnLaEstabilidad"};

}  // namespace

FormEstratosSísmicos::FormEstratosSísmicos(Proyecto& p) : p_(p) {
  nombre = "FormEstratosSísmicos";
  título = "Parámetros de los estratos para el cálculo sísmico";
  nota =
      "Módulo cortante máximo: <1> a partir de la velocidad de la onda de corte; <2> a partir de "
      "las propiedades físicas (relación de vacíos, Cu, Ip, OCR); <3> a partir de las propiedades "
      "elásticas (módulo de elasticidad y coeficiente de Poisson).";
  campos = {
      {"TextoVelocidadOndaDeCorte", "Cs (m/seg) ", "", "Velocidad de la onda de corte del estrato"},
      {"TextoDistorsiónCortante", "Distorsión cortante inicial:", "",
       "Debe ser mayor que cero, por ejemplo 0.000001"},
      {"TextoRelaciónDeVacíos", "Relación de vacíos e:", "", ""},
      {"TextoResistenciaNoDrenada", "Cu (ton/m2)", "",
       "Si la arcilla es drenada Cu = 0  pero de su valor del Ip.  "},
      {"TextoIndicePlástico", "Ip:", "",
       "Indice de plasticidad. Ip > o para arcillas y Ip =0 para arenas."},
      {"TextoRelaciónDeSobreconsolidación", "OCR:", "",
       "OCR = 1 arcillas normalmente consolidadas, OCR > 1 sobreconsolidadas, OCR = 0 suelos no "
       "plásticos"},
      {"TextoEstratoDeterminateEnLaEstabilidad", "¿Determinante en la estabilidad? (SI/NO):", "",
       "SI cuando el material del estrato es determinante en la estabilidad; NO en otro caso"},
      {"TextoEspesorDeSedimentos", "Altura del talud  o de la represa  en estudio  (m):", "", ""},
      {"TextoMétodoGmax",
       "Indique a partir de cuál  metodología desea  determinara El módulo cortante máximo:  ", "",
       "1, 2 ó 3"},
  };
  ListaPantalla l;
  l.nombre = kLista;
  l.columnas = {"Estrato", "Onda corte", "Distorsión", "Vacíos", "Cohesión", "Ind. Plástico",
                "Estabilidad"};
  l.alSeleccionar = [this](Interfaz& ui) { Seleccionar(ui); };
  listas.push_back(std::move(l));
  botones.push_back({"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "&Cancelar", [this](Interfaz& ui) { CerrarSinCambios(ui); }});
}

void FormEstratosSísmicos::Mostrar() {
  auto& l = lista(kLista);
  l.filas.clear();
  for (std::size_t i = 0; i < filas_.size(); ++i) {
    const Fila& f = filas_[i];
    std::vector<std::string> fila{std::to_string(i + 1)};
    if (f.completa)
      fila.insert(fila.end(), {Formato(f.vs, "#0.00"), Formato(f.distorsión, "#0.000000"),
                               Formato(f.vacíos, "#0.00"), Formato(f.cu, "#0.00"),
                               Formato(f.ip, "#0.00"), f.determinante == 2 ? "NO" : "SI"});
    else
      fila.resize(7);
    l.filas.push_back(std::move(fila));
  }
}

void FormEstratosSísmicos::Activar(Interfaz&) {
  const auto& s = p_.Sísmico;
  filas_.assign(static_cast<std::size_t>(std::max<int>(p_.NúmeroEstratos, 0)), Fila{});
  for (long e = 1; e <= static_cast<long>(filas_.size()); ++e) {
    // A stratum inserted after the parameters were given has a row of zeros: it waits for its
    // values (the distortion of a given row is above zero).
    if (!s.ParámetrosSísmicosDados || !(s.DistorsiónCortante.Leer(e) > 0)) continue;
    Fila& f = filas_[static_cast<std::size_t>(e - 1)];
    f.completa = true;
    f.vs = s.VelocidadOndaCorte.Leer(e);
    f.distorsión = s.DistorsiónCortante.Leer(e);
    f.vacíos = s.RelaciónVacíos.Leer(e);
    f.cu = s.ResistenciaNoDrenada.Leer(e);
    f.ip = s.ÍndicePlástico.Leer(e);
    f.ocr = s.OCR.Leer(e);
    f.determinante = s.Determinante.Leer(e);
  }
  lista(kLista).seleccionada = 0;
  for (auto& c : campos) c.valor.clear();
  if (s.ParámetrosSísmicosDados) {
    texto("TextoEspesorDeSedimentos") = NúmeroATexto(s.AlturaPresa);
    if (s.MétodoGmax >= 1 && s.MétodoGmax <= 3) texto("TextoMétodoGmax") = std::to_string(s.MétodoGmax);
  }
  Mostrar();
}

void FormEstratosSísmicos::Seleccionar(Interfaz&) {
  const int i = lista(kLista).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  const Fila& f = filas_[static_cast<std::size_t>(i - 1)];
  if (!f.completa) {
    for (const char* c : kCajas) texto(c).clear();
    return;
  }
  texto("TextoVelocidadOndaDeCorte") = NúmeroATexto(f.vs);
  texto("TextoDistorsiónCortante") = NúmeroATexto(f.distorsión);
  texto("TextoRelaciónDeVacíos") = NúmeroATexto(f.vacíos);
  texto("TextoResistenciaNoDrenada") = NúmeroATexto(f.cu);
  texto("TextoIndicePlástico") = NúmeroATexto(f.ip);
  texto("TextoRelaciónDeSobreconsolidación") = NúmeroATexto(f.ocr);
  texto("TextoEstratoDeterminateEnLaEstabilidad") = f.determinante == 2 ? "NO" : "SI";
}

void FormEstratosSísmicos::Modificar(Interfaz& ui) {
  const int i = lista(kLista).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Seleccione primero en la lista el estrato al que le va a dar los parámetros.");
    return;
  }
  if (!EsNúmero(texto("TextoVelocidadOndaDeCorte"))) {
    ui.Mensaje("Debe dar el valor de la velocidad de la onda de corte. Puede incluir el cero");
    return;
  }
  if (!EsNúmero(texto("TextoDistorsiónCortante"))) {
    ui.Mensaje("Debe dar un valor para la distorsión cortante");
    return;
  }
  if (!(ANúmero(texto("TextoDistorsiónCortante")) > 0)) {
    ui.Mensaje("El valor de la distorsión cortante debe ser mayor a cero.");
    return;
  }
  const struct {
    const char* caja;
    const char* mensaje;
  } kNúmeros[] = {
      {"TextoRelaciónDeVacíos", "Debe dar un valor para la relación de vaciós. Puede incluir el cero"},
      {"TextoResistenciaNoDrenada",
       "Debe dar un valor para la resistencia no drenada. Puede incluir el cero"},
      {"TextoIndicePlástico", "Debe dar un valor para el indice plástico. Puede incluir el cero"},
      {"TextoRelaciónDeSobreconsolidación",
       "Debe dar un valor para la relación de sobreconsolidación. Puede incluir el cero"}};
  for (const auto& c : kNúmeros)
    if (!EsNúmero(texto(c.caja))) {
      ui.Mensaje(c.mensaje);
      return;
    }
  const double ip = ANúmero(texto("TextoIndicePlástico"));
  const double ocr = ANúmero(texto("TextoRelaciónDeSobreconsolidación"));
  if (ip > 0 && ocr < 1) {
    ui.Mensaje("Ud. Está diciendo que el suelo es plástico, entonces: OCR =1 para arcillas "
               "normalmente consolidadas y OCR > 1 para arcillas sobreconsolidadas.");
    return;
  }
  if (ip == 0 && ocr > 0) {
    ui.Mensaje("Ud. está diciendo que el suelo no es plástico y por consiguiente el OCR debe ser "
               "cero, al menos que ud. modifique los datos");
    return;
  }
  const std::string sí = Mayúsculas(Recortar(texto("TextoEstratoDeterminateEnLaEstabilidad")));
  if (sí != "SI" && sí != "NO") {
    ui.Mensaje("Para el tipo de estrato debe introducir  'SI ó NO para indicar el material es o no "
               "es determinante en la estabilidad' ");
    return;
  }
  Fila& f = filas_[static_cast<std::size_t>(i - 1)];
  f.completa = true;
  f.vs = ANúmero(texto("TextoVelocidadOndaDeCorte"));
  f.distorsión = ANúmero(texto("TextoDistorsiónCortante"));
  f.vacíos = ANúmero(texto("TextoRelaciónDeVacíos"));
  f.cu = ANúmero(texto("TextoResistenciaNoDrenada"));
  f.ip = ip;
  f.ocr = ocr;
  f.determinante = sí == "NO" ? 2 : 1;
  Mostrar();
}

void FormEstratosSísmicos::Aceptar(Interfaz& ui) {
  for (const Fila& f : filas_)
    if (!f.completa) {
      ui.Mensaje("Faltan datos. Debe introducir las características para todos y cada uno de los "
                 "estratos",
                 "Características de los estratos");
      return;
    }
  for (std::size_t i = 0; i < filas_.size(); ++i) {
    const long e = static_cast<long>(i) + 1;
    if (p_.Estrato.Fricción.Leer(e) > 0 && filas_[i].cu > 0) {
      ui.Mensaje("Hay un estrato donde no se tiene claro, en que condicón de drenaje se están dando "
                 "los parámetros: el estrato " +
                     std::to_string(e) +
                     " tiene fricción mayor que cero en sus características geomecánicas y "
                     "resistencia no drenada Cu mayor que cero. Para la condición drenada dé Cu = "
                     "0; para la no drenada la fricción del estrato debe ser cero.",
                 "Características de los estratos");
      return;
    }
  }
  if (!EsNúmero(texto("TextoEspesorDeSedimentos"))) {
    ui.Mensaje("Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por "
               "el geologo.");
    return;
  }
  const std::string método = Recortar(texto("TextoMétodoGmax"));
  if (método != "1" && método != "2" && método != "3") {
    ui.Mensaje("Debe introducir el número <1> o <2> o <3>");
    return;
  }
  auto& s = p_.Sísmico;
  const long n = static_cast<long>(filas_.size());
  for (auto* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                  &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
    t->Redimensionar(n);
  s.Determinante.Redimensionar(n);
  s.HayNoDeterminantes = false;
  for (long e = 1; e <= n; ++e) {
    const Fila& f = filas_[static_cast<std::size_t>(e - 1)];
    s.VelocidadOndaCorte[e] = f.vs;
    s.DistorsiónCortante[e] = f.distorsión;
    s.RelaciónVacíos[e] = f.vacíos;
    s.ResistenciaNoDrenada[e] = f.cu;
    s.ÍndicePlástico[e] = f.ip;
    s.OCR[e] = f.ocr;
    s.Determinante[e] = f.determinante;
    if (f.determinante == 2) s.HayNoDeterminantes = true;
  }
  s.AlturaPresa = ANúmero(texto("TextoEspesorDeSedimentos"));
  s.MétodoGmax = static_cast<std::int16_t>(método[0] - '0');
  s.ParámetrosSísmicosDados = true;
  p_.ParámetrosSísmicosCompletos = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void FormEstratosSísmicos::CerrarSinCambios(Interfaz& ui) {
  if (ui.Pregunta("No desea archivar las características de los estratos?")) cerrada = true;
}

void CaracterísticasDeLosEstratosParaElCálculoSísmico(Proyecto& p, Interfaz& ui) {
  if (p.NúmeroEstratos <= 0) {
    ui.Mensaje(kMensajeNoHayEstratos);
    return;
  }
  FormEstratosSísmicos f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
