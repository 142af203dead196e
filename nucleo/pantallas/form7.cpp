#include "pantallas/form7.h"

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kCancelarCargas = "No desea archivar las cargas dadas ?";

PantallaDeCargas::PantallaDeCargas(Proyecto& p, std::vector<ColumnaDeCarga> columnas, const char* lista)
    : p_(p), columnas_(std::move(columnas)), lista_(lista) {
  ListaPantalla l;
  l.nombre = lista_;
  for (const auto& c : columnas_) {
    campos.push_back({c.control, c.etiqueta, "", ""});
    l.columnas.push_back(c.encabezado);
  }
  l.alSeleccionar = [this](Interfaz& ui) { Seleccionar(ui); };
  listas.push_back(std::move(l));
  botones.push_back({"BotónAgregar", "Agregar", [this](Interfaz& ui) { Agregar(ui); }});
  botones.push_back({"BotónModificar", "Modificar", [this](Interfaz& ui) { Modificar(ui); }});
  botones.push_back({"BotónBorrar", "Borrar", [this](Interfaz& ui) { Borrar(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void PantallaDeCargas::Mostrar() {
  auto& l = lista(lista_);
  l.filas.clear();
  for (const auto& fila : filas_) {
    std::vector<std::string> f;
    for (double v : fila) f.push_back(Formato(v, "#0.00"));
    l.filas.push_back(std::move(f));
  }
  if (l.seleccionada > static_cast<int>(l.filas.size())) l.seleccionada = 0;
}

void PantallaDeCargas::Activar(Interfaz&) {
  filas_ = Cargadas();
  lista(lista_).seleccionada = 0;
  Mostrar();
  for (const auto& c : columnas_) texto(c.control).clear();
}

void PantallaDeCargas::Seleccionar(Interfaz&) {
  const int i = lista(lista_).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) return;
  for (std::size_t c = 0; c < columnas_.size(); ++c)
    texto(columnas_[c].control) = NúmeroATexto(filas_[static_cast<std::size_t>(i - 1)][c]);
}

bool PantallaDeCargas::LeerCajas(Interfaz& ui, std::vector<double>& fila) {
  fila.clear();
  for (const auto& c : columnas_) {
    if (!EsNúmero(texto(c.control))) {
      ui.Mensaje(c.mensaje);
      return false;
    }
    fila.push_back(ANúmero(texto(c.control)));
  }
  return FilaVálida(fila, ui);
}

void PantallaDeCargas::Agregar(Interfaz& ui) {
  std::vector<double> fila;
  if (!LeerCajas(ui, fila)) return;
  filas_.push_back(std::move(fila));
  Mostrar();
  for (const auto& c : columnas_) texto(c.control).clear();
}

void PantallaDeCargas::Modificar(Interfaz& ui) {
  const int i = lista(lista_).seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Ud no ha seleccionado ninguna fila para modificar valores ya agregados.");
    return;
  }
  std::vector<double> fila;
  if (!LeerCajas(ui, fila)) return;
  filas_[static_cast<std::size_t>(i - 1)] = std::move(fila);
  Mostrar();
}

void PantallaDeCargas::Borrar(Interfaz& ui) {
  auto& l = lista(lista_);
  const int i = l.seleccionada;
  if (i < 1 || i > static_cast<int>(filas_.size())) {
    ui.Mensaje("Ud no ha seleccionado ninguna fila para borrar.");
    return;
  }
  filas_.erase(filas_.begin() + (i - 1));
  l.seleccionada = 0;
  Mostrar();
}

void PantallaDeCargas::Aceptar(Interfaz&) {
  Guardar(filas_);
  p_.DatosGuardados = false;
  cerrada = true;
}

void PantallaDeCargas::Cancelar(Interfaz& ui) {
  if (ui.Pregunta(kCancelarCargas)) cerrada = true;
}

Form7::Form7(Proyecto& p)
    : PantallaDeCargas(
          p,
          {{"TextoAbscisaInicial", "Abscisa inicial xo (m):", "Debe introducir un número para la abscisa inicial", "xo"},
           {"TextoOrdenadaInicial", "Ordenada inicial yo (m):", "Debe introducir un número para la ordenada inicial", "yo"},
           {"TextoAbscisaFinal", "Abscisa final xf (m):", "Debe introducir un número para la abscisa final", "xf"},
           {"TextoOrdenadaFinal", "Ordenada final yf (m):", "Debe introducir un número para la ordenada final", "yf"},
           {"TextoCargaQx", "Carga qx (ton/m2):",
            "Debe introducir un número para la carga 'qx'. Si no existe el valor es cero", "qx"},
           {"TextoCargaQy", "Carga qy (ton/m2):",
            "Debe introducir un número para la carga 'qy'. Si no existe el valor es cero", "qy"}},
          "ListaCargasUniformes") {
  nombre = "Form7";
  título = "Cargas uniformes distribuidas sobre  la cara del talud";
  campo("TextoAbscisaInicial").ayuda = "Abscisa del extremo más bajo del tramo cargado";
  campo("TextoAbscisaFinal").ayuda = "Abscisa del extremo más alto del tramo cargado";
  botones.push_back({"Command1", "Signos de las cargas", [this](Interfaz& ui) { Signos(ui); }});
}

void Form7::Signos(Interfaz& ui) {
  ui.Mensaje(
      "'qx' es positiva cuando aplique compresión al talud. Esta dirigida en dirección horizontal "
      "(eje de las abscisas).");
  ui.Mensaje(
      "'qy' es positiva cuando aplique compresión al talud. Esta dirigida en dirección vertical  "
      "(eje de las ordenadas).");
}

bool Form7::FilaVálida(const std::vector<double>& fila, Interfaz& ui) {
  if (fila[0] >= fila[2]) {
    ui.Mensaje("El valor de la abscisa inicial tiene que ser menor la abscisa final");
    return false;
  }
  return true;
}

std::vector<std::vector<double>> Form7::Cargadas() const {
  std::vector<std::vector<double>> r;
  if (!p_.CargasUniformesDadas) return r;
  const auto& c = p_.CargaUniforme;
  for (long i = 1; i <= p_.NúmeroCargasUniformes; ++i)
    r.push_back({c.xo.Leer(i), c.yo.Leer(i), c.xf.Leer(i), c.yf.Leer(i), c.qx.Leer(i), c.qy.Leer(i)});
  return r;
}

void Form7::Guardar(const std::vector<std::vector<double>>& filas) {
  auto& c = p_.CargaUniforme;
  const long n = static_cast<long>(filas.size());
  c.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const auto& f = filas[static_cast<std::size_t>(i - 1)];
    c.xo[i] = f[0]; c.yo[i] = f[1]; c.xf[i] = f[2]; c.yf[i] = f[3]; c.qx[i] = f[4]; c.qy[i] = f[5];
  }
  p_.NúmeroCargasUniformes = static_cast<Entero>(n);
  p_.CargasUniformesDadas = n > 0;
}

void CargasUniformes(Proyecto& p, Interfaz& ui) {
  Form7 f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
