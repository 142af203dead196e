#include "pantallas/registro_sismico.h"

#include "pantallas/archivo_lateral.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/registro_sismico.h"

namespace lomaterra {

namespace {
constexpr const char* kLista = "ListaDeRegistroSísmico";
constexpr const char* kTítulo = "Registro sísmico";
}  // namespace

FormRegistroSísmico::FormRegistroSísmico(Proyecto& p) : p_(p) {
  nombre = "FormRegistroSísmico";
  título = "Input de registros sísmico";
  nota =
      "Las aceleraciones son una fracción de la aceleración de la gravedad (g = 9.81 m/seg2). Los "
      "tiempos deben crecer de una fila a la siguiente.";
  campos = {{"Texto_Tiempo", "Tiempo (seg):", "", ""},
            {"Texto_Componente_Horizontal", "Aceleración horizontal (fracción de g):", "",
             "Componente horizontal de la aceleración del sismo, incluyendo el cero"},
            {"Texto_Componente_Vertical", "Aceleración vertical (fracción de g):", "",
             "Componente vertical de la aceleración del sismo, incluyendo el cero"}};
  ListaPantalla l;
  l.nombre = kLista;
  l.columnas = {"tiempo", "acel_h", "acel_v"};
  l.alSeleccionar = [this](Interfaz& ui) { Seleccionar(ui); };
  listas.push_back(std::move(l));
  botones.push_back({"BotónAgregar", "&Agregar", [this](Interfaz& ui) { Agregar(ui); }});
  botones.push_back({"BotónModificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónBorrar", "&Borrar", [this](Interfaz& ui) { Borrar(ui); }});
  botones.push_back({"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }});
}

void FormRegistroSísmico::Mostrar() {
  auto& l = lista(kLista);
  l.filas.clear();
  for (const FilaRegistro& f : filas_)
    l.filas.push_back({Formato(f.tiempo, "#0.000"), Formato(f.horizontal, "#0.000"),
                       Formato(f.vertical, "#0.000")});
  if (l.seleccionada > static_cast<int>(filas_.size())) l.seleccionada = 0;
}

void FormRegistroSísmico::Activar(Interfaz&) {
  filas_ = RegistroDelProyecto(p_);
  aceptada_ = false;
  lista(kLista).seleccionada = 0;
  for (auto& c : campos) c.valor.clear();
  Mostrar();
}

void FormRegistroSísmico::Seleccionar(Interfaz&) {
  const int i = lista(kLista).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  const FilaRegistro& f = filas_[static_cast<std::size_t>(i - 1)];
  texto("Texto_Tiempo") = NúmeroATexto(f.tiempo);
  texto("Texto_Componente_Horizontal") = NúmeroATexto(f.horizontal);
  texto("Texto_Componente_Vertical") = NúmeroATexto(f.vertical);
}

bool FormRegistroSísmico::LeerCajas(Interfaz& ui, FilaRegistro& f) {
  if (!EsNúmero(texto("Texto_Componente_Vertical"))) {
    ui.Mensaje("Debe introducir el valor de la componente de la aceleración vertical del sísmo, "
               "incluyendo el cero");
    return false;
  }
  if (!EsNúmero(texto("Texto_Componente_Horizontal"))) {
    ui.Mensaje("Debe introducir el valor de la componente de la aceleración horizontal del sísmo, "
               "incluyendo el cero");
    return false;
  }
  if (!EsNúmero(texto("Texto_Tiempo"))) {
    ui.Mensaje("Debe introducir el tiempo correspondientes a las componentes dadas de aceleración");
    return false;
  }
  f.tiempo = ANúmero(texto("Texto_Tiempo"));
  f.horizontal = ANúmero(texto("Texto_Componente_Horizontal"));
  f.vertical = ANúmero(texto("Texto_Componente_Vertical"));
  return true;
}

void FormRegistroSísmico::Agregar(Interfaz& ui) {
  FilaRegistro f;
  if (!LeerCajas(ui, f)) return;
  if (!filas_.empty() && !(f.tiempo > filas_.back().tiempo)) {
    ui.Mensaje("El tiempo " + Formato(f.tiempo, "#0.000") +
                   " s no es mayor que el de la última fila (" +
                   Formato(filas_.back().tiempo, "#0.000") +
                   " s). Los tiempos del registro deben crecer de una fila a la siguiente.",
               kTítulo);
    return;
  }
  filas_.push_back(f);
  for (auto& c : campos) c.valor.clear();
  Mostrar();
}

void FormRegistroSísmico::Modificar(Interfaz& ui) {
  const int i = lista(kLista).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Ud no ha seleccionado ninguna fila para modificar valores ya agregados.");
    return;
  }
  FilaRegistro f;
  if (!LeerCajas(ui, f)) return;
  filas_[static_cast<std::size_t>(i - 1)] = f;
  Mostrar();
}

void FormRegistroSísmico::Borrar(Interfaz&) {
  const int i = lista(kLista).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  filas_.erase(filas_.begin() + (i - 1));
  lista(kLista).seleccionada = 0;
  Mostrar();
}

void FormRegistroSísmico::Aceptar(Interfaz& ui) {
  if (const std::string defecto = DefectoDelRegistro(filas_); !defecto.empty()) {
    ui.Mensaje(defecto, kTítulo);
    return;
  }
  GuardarRegistro(p_, filas_);
  aceptada_ = true;
  cerrada = true;
}

void InputDeRegistrosSísmico(Proyecto& p, Interfaz& ui) {
  bool leer = true;
  if (p.Sísmico.NúmeroPuntosRegistro > 0)
    leer = ui.Pregunta(
        "Ya existen registros sísmicos. Desea asignarlos de nuevo al programa  a partir de un "
        "archivo existente? ");
  if (leer &&
      ui.Pregunta("Existe una carpeta ya creada en c:\\ con el nombre CarpetaRegistroSismico?. Esa "
                  "carpeta contiene un archivo con nombre 'registrosismico.cod', con el total de "
                  "los puntos del registro sísmico: tiempo, aceleración horizontal y aceleración "
                  "vertical.?")) {
    const LecturaRegistro r =
        LeerArchivoRegistroSísmico(RutaArchivoLateral("CarpetaRegistroSismico", "registrosismico.cod"));
    if (r.error.empty())
      GuardarRegistro(p, r.filas);
    else
      ui.Mensaje(r.error, "Archivo del registro sísmico");
  }
  FormRegistroSísmico f(p);
  ui.Abrir(f);
  if (f.Aceptada()) ui.MostrarFigura(FiguraRegistroSísmico(p));
}

void GráficaDeRegistroSísmico(Proyecto& p, Interfaz& ui) {
  if (p.Sísmico.NúmeroPuntosRegistro < 2) {
    ui.Mensaje("No hay registro sísmico para dibujar. Vaya al menú 'Elementos finitos', a la sesión "
               "'Input de registros sísmico', y dé el registro.",
               kTítulo);
    return;
  }
  ui.MostrarFigura(FiguraRegistroSísmico(p));
}

}  // namespace lomaterra
