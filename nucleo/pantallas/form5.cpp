#include "pantallas/form5.h"

#include <algorithm>

#include "proyecto/valores_posibles.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kMensajeNoHayEstratos =
    "Actualmente no hay estratos. Seleccione primero una de las opciones: \nInsertar estrato";

namespace {

constexpr const char* kCajas[] = {"TextoCohesión",         "TextoFricción",
                                  "TextoPesoUnitarioHúmedo", "TextoPesoUnitarioSaturado",
                                  "TextoTipoEstrato",      "TextoParámetroPresión",
                                  "TextoCoeficienteConsolidaciónVertical", "TextoTiempoDeConstrucción"};

}  // namespace

Form5::Form5(Proyecto& p) : p_(p) {
  nombre = "Form5";
  título = "Características de los estratos en suelos";
  campos = {
      {"TextoSueloRoca", "Suelo o roca <S>:", "", "Para el análisis en suelos introduzca la letra 'S'"},
      {"TextoCohesión", "Cohesión (ton/m2):", "", ""},
      {"TextoFricción", "Fricción (grados):", "", ""},
      {"TextoPesoUnitarioHúmedo", "Peso unitario húmedo (ton/m3):", "", ""},
      {"TextoPesoUnitarioSaturado", "Peso unitario saturado (ton/m3):", "",
       "Si el estrato no está saturado debe ser igual al peso unitario húmedo."},
      {"TextoTipoEstrato", "Tipo de estrato <A/B>:", "",
       "'A' para terraplenes y rellenos artificiales, 'B' para estratos naturales"},
      {"TextoParámetroPresión", "Parámetro de presión intersticial B:", "", ""},
      {"TextoCoeficienteConsolidaciónVertical", "Coeficiente de consolidación vertical Cv (cm2/s):", "",
       "Cero cuando no se considera la consolidación en el estrato."},
      {"TextoTiempoDeConstrucción", "Tiempo de construcción (meses):", "",
       "Cero para estratos naturales."},
  };
  ListaPantalla l;
  l.nombre = "ListaEstratos";
  l.columnas = {"Estrato", "Cohesión", "Fricción", "P.U. húmedo", "P.U. saturado", "Tipo",
                "Parámetro B", "Cv", "Tiempo"};
  l.alSeleccionar = [this](Interfaz& ui) { Seleccionar(ui); };
  listas.push_back(std::move(l));
  botones.push_back({"BotónModificar", "Modificar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void Form5::Mostrar() {
  auto& l = lista("ListaEstratos");
  l.filas.clear();
  for (std::size_t i = 0; i < filas_.size(); ++i) {
    const Fila& f = filas_[i];
    std::vector<std::string> fila{std::to_string(i + 1)};
    if (f.completa) {
      fila.insert(fila.end(), {Formato(f.cohesión, "#0.00"), Formato(f.fricción, "#0.00"),
                               Formato(f.húmedo, "#0.00"), Formato(f.saturado, "#0.00"), f.tipo,
                               Formato(f.presión, "#0.00"), Formato(f.cv, "#0.0000000"),
                               Formato(f.tiempo, "#0.00")});
    } else {
      fila.resize(9);
    }
    l.filas.push_back(std::move(fila));
  }
}

void Form5::Activar(Interfaz&) {
  filas_.assign(static_cast<std::size_t>(std::max<int>(p_.NúmeroEstratos, 0)), Fila{});
  const auto& e = p_.Estrato;
  for (int s = 1; s <= p_.NúmeroEstratos; ++s) {
    // A stratum shows its values when they were given as soil; an inserted stratum, still without
    // its characteristics (no moist unit weight), shows an empty row.
    if (p_.TipoDeMaterial != "S" || !(e.PesoUnitarioHúmedo.Leer(s) > 0)) continue;
    Fila& f = filas_[static_cast<std::size_t>(s - 1)];
    f.completa = true;
    f.cohesión = e.Cohesión.Leer(s);
    f.fricción = e.Fricción.Leer(s);
    f.húmedo = e.PesoUnitarioHúmedo.Leer(s);
    f.saturado = e.PesoUnitarioSaturado.Leer(s);
    f.tipo = e.TipoEstrato.Leer(s) == 1 ? "A" : "B";
    f.presión = e.ParámetroPresión.Leer(s);
    f.cv = e.CoeficienteConsolidaciónVertical.Leer(s);
    f.tiempo = e.TiempoDeConstrucción.Leer(s);
  }
  lista("ListaEstratos").seleccionada = 0;
  Mostrar();
  texto("TextoSueloRoca") = p_.TipoDeMaterial;
  for (const char* caja : kCajas) texto(caja).clear();
}

void Form5::Seleccionar(Interfaz&) {
  const int i = lista("ListaEstratos").seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  const Fila& f = filas_[static_cast<std::size_t>(i - 1)];
  if (!f.completa) {
    for (const char* caja : kCajas) texto(caja).clear();
    return;
  }
  texto("TextoCohesión") = NúmeroATexto(f.cohesión);
  texto("TextoFricción") = NúmeroATexto(f.fricción);
  texto("TextoPesoUnitarioHúmedo") = NúmeroATexto(f.húmedo);
  texto("TextoPesoUnitarioSaturado") = NúmeroATexto(f.saturado);
  texto("TextoTipoEstrato") = f.tipo;
  texto("TextoParámetroPresión") = NúmeroATexto(f.presión);
  texto("TextoCoeficienteConsolidaciónVertical") = NúmeroATexto(f.cv);
  texto("TextoTiempoDeConstrucción") = NúmeroATexto(f.tiempo);
}

void Form5::Modificar(Interfaz& ui) {
  const int i = lista("ListaEstratos").seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Seleccione primero en la lista el estrato al que le va a dar las características.");
    return;
  }
  const char* kNoNúmero[] = {"Debe introducir un número en la cohesión",
                             "Debe introducir un número en la fricción",
                             "Debe introducir un número en el peso unitario húmedo",
                             "Debe introducir un número en el peso unitario saturado"};
  for (int c = 0; c < 4; ++c)
    if (!EsNúmero(texto(kCajas[c]))) {
      ui.Mensaje(kNoNúmero[c]);
      return;
    }
  const std::string tipo = Mayúsculas(Recortar(texto("TextoTipoEstrato")));
  if (tipo != "A" && tipo != "B") {
    ui.Mensaje(
        "Para el tipo de estrato debe introducir una 'A para Terraplenes y rellenos artificiales' o "
        "una 'B para estratos naturales'");
    return;
  }
  if (!EsNúmero(texto("TextoParámetroPresión"))) {
    ui.Mensaje("Debe introducir un número en el parámetro de presión intersticial");
    return;
  }
  if (!EsNúmero(texto("TextoCoeficienteConsolidaciónVertical"))) {
    ui.Mensaje("Debe introducir un número para el coeficiente de consolidación vertical");
    return;
  }
  if (!EsNúmero(texto("TextoTiempoDeConstrucción"))) {
    ui.Mensaje("Debe introducir un número para el tiempo de construcción");
    return;
  }
  double tiempo = ANúmero(texto("TextoTiempoDeConstrucción"));
  if (tipo == "B" && tiempo != 0) {
    // A natural stratum was not built: its time of construction is taken as zero.
    ui.Mensaje("Si el estrato es natural, entonces el Tiempo de construcción es cero");
    tiempo = 0;
    texto("TextoTiempoDeConstrucción") = "0";
  }
  const double húmedo = ANúmero(texto("TextoPesoUnitarioHúmedo"));
  const double saturado = ANúmero(texto("TextoPesoUnitarioSaturado"));
  if (saturado < húmedo) {
    ui.Mensaje(
        "El peso unitario saturado es menor que el peso unitario húmedo. Por favor corriga. Si no "
        "está saturado debe ser igual al peso unitario húmedo.");
    return;
  }
  const char* confirmación =
      saturado == húmedo
          ? "El peso unitario saturado es igual que el peso unitario húmedo. Observe bien los valores "
            "antes de salir de esta pantalla. ¿Es correcto el valor dado para peso unitario saturado?"
          : "El peso unitario saturado es mayor que el peso unitario húmedo. Observe bien los valores "
            "antes de salir de esta pantalla. ¿Es correcto el valor dado para peso unitario saturado?";
  if (!ui.Pregunta(confirmación)) return;
  if (!ValoresPosiblesDeSuelo(ui, ANúmero(texto("TextoCohesión")), ANúmero(texto("TextoFricción")),
                              húmedo, saturado))
    return;
  if (ANúmero(texto("TextoCoeficienteConsolidaciónVertical")) < 0) {
    ui.Mensaje("El coeficiente de consolidación vertical no puede ser negativo: dé cero cuando el "
               "estrato no consolida.",
               kTítuloValoresImposibles);
    return;
  }
  if (tiempo < 0) {
    ui.Mensaje("El tiempo de construcción no puede ser negativo.", kTítuloValoresImposibles);
    return;
  }

  Fila& f = filas_[static_cast<std::size_t>(i - 1)];
  f.completa = true;
  f.cohesión = ANúmero(texto("TextoCohesión"));
  f.fricción = ANúmero(texto("TextoFricción"));
  f.húmedo = húmedo;
  f.saturado = saturado;
  f.tipo = tipo;
  f.presión = ANúmero(texto("TextoParámetroPresión"));
  f.cv = ANúmero(texto("TextoCoeficienteConsolidaciónVertical"));
  f.tiempo = tiempo;
  Mostrar();
}

void Form5::Aceptar(Interfaz& ui) {
  if (Mayúsculas(Recortar(texto("TextoSueloRoca"))) != "S") {
    ui.Mensaje("Para el análisis en suelos, ud debe introducir  la letra  'S'");
    return;
  }
  for (const Fila& f : filas_)
    if (!f.completa) {
      ui.Mensaje("Faltan datos. Debe introducir las características para todos y cada uno de los estratos",
                 "Características de los estratos");
      return;
    }
  auto& e = p_.Estrato;
  const long n = static_cast<long>(filas_.size());
  e.RedimensionarConservando(n);
  for (long s = 1; s <= n; ++s) {
    const Fila& f = filas_[static_cast<std::size_t>(s - 1)];
    e.Cohesión[s] = f.cohesión;
    e.Fricción[s] = f.fricción;
    e.PesoUnitarioHúmedo[s] = f.húmedo;
    e.PesoUnitarioSaturado[s] = f.saturado;
    e.TipoEstrato[s] = f.tipo == "A" ? 1 : 0;
    e.ParámetroPresión[s] = f.presión;
    e.CoeficienteConsolidaciónVertical[s] = f.cv;
    e.TiempoDeConstrucción[s] = f.tiempo;
  }
  p_.TipoDeMaterial = "S";
  p_.EstratosCaracterizados = true;
  p_.NúmeroEstratosCaracterizados = p_.NúmeroEstratos;
  p_.CaracterísticasSueloCompletas = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void Form5::Cancelar(Interfaz& ui) {
  if (ui.Pregunta("No desea archivar las características de los estratos?")) cerrada = true;
}

void CaracterísticasGeomecánicasSuelos(Proyecto& p, Interfaz& ui) {
  if (p.NúmeroEstratos <= 0) {
    ui.Mensaje(kMensajeNoHayEstratos);
    return;
  }
  Form5 f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
