#include "pantallas/malla.h"

#include <algorithm>
#include <cmath>

#include "elementos/refinamiento.h"
#include "pantallas/form34.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"
#include "salida/malla.h"

namespace lomaterra {

const char* const kPreguntaMaterialesAlGuardar =
    "Si ud modificó el número de elementos y no los  caracterizó con el respectivo material de los estratos, "
    "Presione 'Si'.";

namespace {

const char* const kNoEstáEnElementos = "Ud. no está trabajando con elementos finitos";
const char* const kSinFila = "Ud no ha seleccionado ninguna fila para modificar valores ya agregados.";

std::size_t Z(long i) { return static_cast<std::size_t>(i); }

bool Seleccionada(const ListaPantalla& l) { return l.seleccionada >= 1 && l.seleccionada <= static_cast<int>(l.filas.size()); }

// A whole number for a 16-bit count or node number, or nothing.
std::optional<long> Entero16(const std::string& texto) {
  if (!EsNúmero(texto)) return std::nullopt;
  const double v = RedondeoPar(ANúmero(texto));
  if (v < -32768 || v > 32767) return std::nullopt;
  return static_cast<long>(v);
}

bool ExisteNodo(const Proyecto& p, long n) {
  const TablaNodo& t = p.Malla.Nodo;
  for (long f = p.Malla.NúmeroDeNodos; f >= 1; --f)
    if (t.NúmeroDeNodo.Leer(f) == n) return true;
  return false;
}

// A value for a list: whole numbers written out in full, others in their shortest form.
std::string Valor(double v) { return v == std::floor(v) && std::abs(v) < 1e15 ? Formato(v, "#") : NúmeroATexto(v); }

std::string SíNo(double código) { return código == 1 ? "SI" : código == 2 ? "NO" : ""; }

}  // namespace

// ---------------------------------------------------------------------------------------------
// Nodes

PantallaNodos::PantallaNodos(Proyecto& p) : p_(p) {
  nombre = "FormNodos";
  título = "Coordenadas de los nodos que definen los elementos";
  campos = {{"Texto_Nodo", "Nodo:", "", "Número del nodo (1, 2, 3 ...)"},
            {"TextoX_Nodo", "x (m):", "", ""},
            {"TextoY_Nodo", "y (m):", "", ""},
            {"TextoZ_Nodo", "z (m):", "", "Se guarda y se muestra; ningún cálculo la usa"}};
  listas = {{"ListaCoordenadasNodos", {"Nodo", "x", "y", "z"}, {}, 0, [this](Interfaz& ui) { Seleccionar(ui); }}};
  botones = {{"BotónAgregar", "&Agregar", [this](Interfaz& ui) { Agregar(ui); }},
             {"BotónModificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónBorrar", "&Borrar", [this](Interfaz& ui) { Borrar(ui); }},
             {"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }}};
}

void PantallaNodos::Activar(Interfaz&) {
  const MallaElementos& m = p_.Malla;
  filas_.clear();
  for (long f = 1; f <= m.NúmeroDeNodos; ++f)
    filas_.push_back({m.Nodo.NúmeroDeNodo.Leer(f), m.Nodo.XNodo.Leer(f), m.Nodo.YNodo.Leer(f), m.Nodo.ZNodo.Leer(f)});
  lista("ListaCoordenadasNodos").seleccionada = 0;
  Mostrar();
}

void PantallaNodos::Mostrar() {
  auto& l = lista("ListaCoordenadasNodos");
  l.filas.clear();
  for (const Fila& f : filas_)
    l.filas.push_back({std::to_string(f.nodo), Formato(f.x, "#0.00"), Formato(f.y, "#0.00"), Formato(f.z, "#0.00")});
  if (!Seleccionada(l)) l.seleccionada = 0;
}

void PantallaNodos::Seleccionar(Interfaz&) {
  const auto& l = lista("ListaCoordenadasNodos");
  if (!Seleccionada(l)) return;
  const Fila& f = filas_[Z(l.seleccionada - 1)];
  texto("Texto_Nodo") = std::to_string(f.nodo);
  texto("TextoX_Nodo") = NúmeroATexto(f.x);
  texto("TextoY_Nodo") = NúmeroATexto(f.y);
  texto("TextoZ_Nodo") = NúmeroATexto(f.z);
}

bool PantallaNodos::Insertar(Interfaz& ui) {
  const auto nodo = Entero16(texto("Texto_Nodo"));
  if (!nodo) {
    ui.Mensaje("Debe introducir un número entero");
    return false;
  }
  const char* cajas[3] = {"TextoX_Nodo", "TextoY_Nodo", "TextoZ_Nodo"};
  const char* mensajes[3] = {"Debe introducir un número en x", "Debe introducir un número en y", "Debe introducir un número en z"};
  for (int i = 0; i < 3; ++i)
    if (!EsNúmero(texto(cajas[i]))) {
      ui.Mensaje(mensajes[i]);
      return false;
    }
  // The test runs only when the table has more than one row.
  if (filas_.size() > 1)
    for (const Fila& f : filas_)
      if (f.nodo == *nodo) {
        ui.Mensaje("Ya existe un nodo con el mismo número.");
        return false;
      }
  const Fila nueva{*nodo, ANúmero(texto("TextoX_Nodo")), ANúmero(texto("TextoY_Nodo")), ANúmero(texto("TextoZ_Nodo"))};
  auto donde = std::find_if(filas_.begin(), filas_.end(), [&](const Fila& f) { return f.nodo <= nueva.nodo; });
  filas_.insert(donde, nueva);
  return true;
}

void PantallaNodos::Agregar(Interfaz& ui) {
  if (Insertar(ui)) Mostrar();
}

void PantallaNodos::Modificar(Interfaz& ui) {
  auto& l = lista("ListaCoordenadasNodos");
  if (!Seleccionada(l)) {
    ui.Mensaje(kSinFila);
    return;
  }
  const std::size_t i = Z(l.seleccionada - 1);
  const Fila vieja = filas_[i];
  filas_.erase(filas_.begin() + static_cast<long>(i));
  if (!Insertar(ui)) filas_.insert(filas_.begin() + static_cast<long>(i), vieja);
  Mostrar();
}

void PantallaNodos::Borrar(Interfaz&) {
  auto& l = lista("ListaCoordenadasNodos");
  if (!Seleccionada(l)) return;
  filas_.erase(filas_.begin() + (l.seleccionada - 1));
  l.seleccionada = 0;
  Mostrar();
}

void PantallaNodos::Aceptar(Interfaz& ui) {
  for (std::size_t i = 0; i + 1 < filas_.size(); ++i)
    if (filas_[i].nodo != filas_[i + 1].nodo + 1) {
      ui.Mensaje(
          "La numeración que ud tiene asignada a los nodos no es continua. La numeración a los nodos debe ser: "
          "1,2,3,4....");
      return;
    }
  MallaElementos& m = p_.Malla;
  const long n = static_cast<long>(filas_.size());
  m.Nodo.Redimensionar(n);
  for (long f = 1; f <= n; ++f) {
    const Fila& r = filas_[Z(f - 1)];
    m.Nodo.NúmeroDeNodo[f] = static_cast<Entero>(r.nodo);
    m.Nodo.XNodo[f] = r.x;
    m.Nodo.YNodo[f] = r.y;
    m.Nodo.ZNodo[f] = r.z;
  }
  m.NúmeroDeNodos = static_cast<Entero>(n);
  m.NodosDefinidos = n > 0;
  p_.DatosGuardados = false;
  cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Elements

PantallaInsertarElementos::PantallaInsertarElementos(long elementos) {
  nombre = "FormInsertarElementos";
  título = "Insertar elementos";
  ListaPantalla l{"ListaEntreElementos", {"Lugar del nuevo elemento"}, {}, 0, {}};
  l.filas.push_back({"antes del primero"});
  for (long i = 1; i < elementos; ++i) l.filas.push_back({"entre" + std::to_string(i) + " y " + std::to_string(i + 1)});
  l.filas.push_back({"después del último"});
  listas = {l};
  botones = {{"BotónAceptar", "&Aceptar",
              [this](Interfaz&) {
                const auto& l = lista("ListaEntreElementos");
                if (Seleccionada(l)) posición = l.seleccionada - 1;
                cerrada = true;
              }},
             {"BotónCancelar", "&Cancelar", [this](Interfaz&) { posición = -1, cerrada = true; }}};
}

PantallaElementos::PantallaElementos(Proyecto& p) : p_(p) {
  nombre = "FormElementos";
  título = "Definición de los elementos";
  nota =
      "Sentido antihorario: nodos 1, 2, 3 en las esquinas; 4 en el lado 1-2, 5 en el lado 2-3, 6 en el lado 3-1. "
      "En un elemento de seis nodos, un lado recto ('NO') repite su esquina: el cuarto nodo repite el primero, el "
      "quinto el segundo y el sexto el tercero.";
  campos = {{"TextoTipoDeElemento", "Tipo de elemento:", "T", "T: triangular (R: rectángulo y B: ladrillo no se usan)"},
            {"Texto_Nodo_Elemento", "Nodo:", "", ""},
            {"TextoNúmeroPuntosIntegración", "Puntos de integración:", "", "1 (tres nodos) ó 3 (seis nodos)"},
            {"TextoLadoUnoDOs", "Lado 1-2:", "", "SI ó NO"},
            {"TextoLadoDOsTres", "Lado 2-3:", "", "SI ó NO"},
            {"TextoLadoTresUno", "Lado 3-1:", "", "SI ó NO"}};
  listas = {{"ListaElementos", {"Elemento"}, {}, 0, [this](Interfaz& ui) { ElegirElemento(ui); }},
            {"ListaNodosElementos", {"Nodo"}, {}, 0, [this](Interfaz& ui) { ElegirNodo(ui); }},
            {"NodosEnLadosIntermedios", {"Puntos", "Lado 1-2", "Lado 2-3", "Lado 3-1"}, {}, 0, {}}};
  botones = {{"BotónAgregar", "&Agregar nodo", [this](Interfaz& ui) { Agregar(ui); }},
             {"BotónModificar", "&Modificar nodo", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónBorrar", "&Borrar nodo", [this](Interfaz& ui) { Borrar(ui); }},
             {"Modificar", "Puntos y &lados", [this](Interfaz& ui) { ModificarLados(ui); }},
             {"BotónAgregarElemento", "&Nuevo elemento", [this](Interfaz& ui) { NuevoElemento(ui); }},
             {"BotónInsertarElemento", "&Insertar elemento", [this](Interfaz& ui) { InsertarElemento(ui); }},
             {"BotónEliminarElemento", "&Eliminar elemento", [this](Interfaz& ui) { EliminarElemento(ui); }},
             {"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }}};
}

void PantallaElementos::Activar(Interfaz&) {
  const MallaElementos& m = p_.Malla;
  const TablaElemento& t = m.Elemento;
  elementos_.clear();
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    Elemento el;
    for (int k = 1; k <= t.NodosPorElemento.Leer(e); ++k) {
      // After a refinement the lists are rebuilt from the copies, which hold the new numbers.
      const double n = m.MallaRefinada ? t.NúmeroElemento.Leer(e, k) : t.NodoDeElemento.Leer(e, k);
      el.nodos.push_back(std::lround(n));
    }
    el.puntos = t.PuntosIntegración.Leer(e);
    el.lado12 = t.Lado12.Leer(e);
    el.lado23 = t.Lado23.Leer(e);
    el.lado31 = t.Lado31.Leer(e);
    el.material = t.MaterialDeElemento.Leer(e);
    elementos_.push_back(el);
  }
  actual_ = elementos_.empty() ? 0 : 1;
  texto("TextoTipoDeElemento") = m.TipoDeElemento.empty() ? "T" : m.TipoDeElemento;
  Mostrar();
}

void PantallaElementos::Mostrar() {
  auto& le = lista("ListaElementos");
  le.filas.clear();
  for (std::size_t i = 0; i < elementos_.size(); ++i) le.filas.push_back({std::to_string(i + 1)});
  le.seleccionada = static_cast<int>(actual_);
  auto& ln = lista("ListaNodosElementos");
  ln.filas.clear();
  auto& ll = lista("NodosEnLadosIntermedios");
  ll.filas.clear();
  if (actual_ >= 1) {
    const Elemento& el = elementos_[Z(actual_ - 1)];
    for (long n : el.nodos) ln.filas.push_back({std::to_string(n)});
    ll.filas.push_back({el.puntos ? Formato(el.puntos, "#") : "", SíNo(el.lado12), SíNo(el.lado23), SíNo(el.lado31)});
    texto("TextoNúmeroPuntosIntegración") = el.puntos ? Formato(el.puntos, "#") : "";
    texto("TextoLadoUnoDOs") = SíNo(el.lado12);
    texto("TextoLadoDOsTres") = SíNo(el.lado23);
    texto("TextoLadoTresUno") = SíNo(el.lado31);
  }
  if (!Seleccionada(ln)) ln.seleccionada = 0;
}

bool PantallaElementos::GuardarActual(Interfaz& ui) {
  if (actual_ < 1) return true;
  Elemento& el = elementos_[Z(actual_ - 1)];
  if (el.nodos.size() != 3 && el.nodos.size() != 6) {
    ui.Mensaje(
        "Un elemento triangular de orden lineal (definidos por tres nodos) debe tener 3 ptos de coordenadas. Un "
        "elemento triangular de orden cuadrático (cada lado curvo definido por tres nodos. Al menos uno de sus lados "
        "debe ser curvo) debe tener dar 6 ptos de coordenadas (Si no existen algunos puntos intermedios, igual debe "
        "dar 6 ptos de coordenadas, tomando en cuenta las nosta s indicadas en pantalla).");
    return false;
  }
  if (el.nodos.size() == 3) {
    el.puntos = 1;
    el.lado12 = el.lado23 = el.lado31 = 2;
    return true;
  }
  const std::pair<double, const char*> faltas[] = {
      {el.puntos, "Escriba en las cajas de texto ubicadas en la parte inferior de la pantalla, el número de puntos de "
                  "integración."},
      {el.lado12, "Escriba en las cajas de texto ubicadas en la parte inferior de la pantalla (Lado 1-2) SI  existe o "
                  "NO nodos intermedios."},
      {el.lado23, "Escriba en las cajas de texto ubicadas en la parte inferior de la pantalla (Lado 2-3) SI  existe o "
                  "NO nodos intermedios."},
      {el.lado31, "Escriba en las cajas de texto ubicadas en la parte inferior de la pantalla (Lado 3-1) SI  existe o "
                  "NO nodos intermedios."}};
  for (const auto& [valor, mensaje] : faltas)
    if (valor == 0) {
      ui.Mensaje(mensaje);
      return false;
    }
  return true;
}

void PantallaElementos::ElegirElemento(Interfaz& ui) {
  auto& le = lista("ListaElementos");
  const long elegido = le.seleccionada;
  if (elegido == actual_ || elegido < 1 || elegido > static_cast<long>(elementos_.size())) return;
  if (!GuardarActual(ui)) {
    le.seleccionada = static_cast<int>(actual_);
    return;
  }
  actual_ = elegido;
  Mostrar();
}

void PantallaElementos::ElegirNodo(Interfaz&) {
  const auto& ln = lista("ListaNodosElementos");
  if (Seleccionada(ln)) texto("Texto_Nodo_Elemento") = ln.filas[Z(ln.seleccionada - 1)][0];
}

void PantallaElementos::Agregar(Interfaz& ui) {
  if (actual_ < 1) {
    ui.Mensaje("Debe insertar el primer elemento");
    return;
  }
  const auto n = Entero16(texto("Texto_Nodo_Elemento"));
  if (!n) {
    ui.Mensaje("Debe introducir el número asignado al nodo");
    return;
  }
  if (!ExisteNodo(p_, *n)) {
    ui.Mensaje("Debe introducir un número que identifique un nodo dado");
    return;
  }
  Elemento& el = elementos_[Z(actual_ - 1)];
  if (el.nodos.size() >= 6) {
    ui.Mensaje(
        "Ud ha seleccionado trabajar con elementos triangulares y está asignando más de seis nodos al elemento que "
        "tiene al frente.");
    return;
  }
  el.nodos.push_back(*n);
  texto("Texto_Nodo_Elemento").clear();
  Mostrar();
}

void PantallaElementos::Modificar(Interfaz& ui) {
  auto& ln = lista("ListaNodosElementos");
  if (actual_ < 1 || !Seleccionada(ln)) {
    ui.Mensaje(kSinFila);
    return;
  }
  const auto n = Entero16(texto("Texto_Nodo_Elemento"));
  if (!n || !ExisteNodo(p_, *n)) {
    ui.Mensaje("Debe introducir un número que identifique un nodo dado.");
    return;
  }
  elementos_[Z(actual_ - 1)].nodos[Z(ln.seleccionada - 1)] = *n;
  Mostrar();
}

void PantallaElementos::Borrar(Interfaz&) {
  auto& ln = lista("ListaNodosElementos");
  if (actual_ < 1 || !Seleccionada(ln)) return;
  auto& nodos = elementos_[Z(actual_ - 1)].nodos;
  nodos.erase(nodos.begin() + (ln.seleccionada - 1));
  ln.seleccionada = 0;
  Mostrar();
}

void PantallaElementos::ModificarLados(Interfaz& ui) {
  if (actual_ < 1) {
    ui.Mensaje("Debe insertar el primer elemento");
    return;
  }
  Elemento& el = elementos_[Z(actual_ - 1)];
  if (el.nodos.size() == 3) {
    texto("TextoNúmeroPuntosIntegración") = "1";
    texto("TextoLadoUnoDOs") = texto("TextoLadoDOsTres") = texto("TextoLadoTresUno") = "NO";
  }
  const std::string& puntos = texto("TextoNúmeroPuntosIntegración");
  if (!EsNúmero(puntos)) {
    ui.Mensaje(
        "Debe introducir un número para los puntos de integración. El '1' para triángulos  de 3 nodos (orden lineal) "
        "y '3' para triángulos (orden cuadráticos) con lados curvos (al menos uno de sus lados debe ser curvo).");
    return;
  }
  const double pi = ANúmero(puntos);
  if (pi != 1 && pi != 3) {
    ui.Mensaje(
        "Para elementos triangulares debe dar, el número '1' para triángulos (orden lineal) de 3 nodos (lados "
        "rectos) ó el núemro '3' para triángulos (orden cuadrático) de lados curvos definidos por tres nodos cada "
        "lado o al menos uno de sus lados debe ser curvo.");
    return;
  }
  const std::pair<const char*, const char*> lados[3] = {
      {"TextoLadoUnoDOs", "Si existe nodo intermedio en el lado 1 - 2, escriba 'SI' de lo contrario escriba  'NO'"},
      {"TextoLadoDOsTres", "Si existe nodo intermedio en el lado 2 - 3, escriba 'SI' de lo contrario escriba  'NO'"},
      {"TextoLadoTresUno", "Si existe nodo intermedio en el lado 3 - 1, escriba 'SI' de lo contrario escriba  'NO'"}};
  double código[3];
  for (int i = 0; i < 3; ++i) {
    const std::string v = Mayúsculas(Recortar(texto(lados[i].first)));
    if (v != "SI" && v != "NO") {
      ui.Mensaje(lados[i].second);
      return;
    }
    código[i] = v == "SI" ? 1 : 2;
  }
  if (el.nodos.size() == 6 && pi != 3) {
    ui.Mensaje("Para elementos de orden cuadrático el número de puntos de integración debe ser 3.");
    return;
  }
  el.puntos = pi;
  el.lado12 = código[0];
  el.lado23 = código[1];
  el.lado31 = código[2];
  Mostrar();
}

void PantallaElementos::NuevoElemento(Interfaz& ui) {
  if (!GuardarActual(ui)) return;
  elementos_.push_back({});
  actual_ = static_cast<long>(elementos_.size());
  Mostrar();
}

void PantallaElementos::InsertarElemento(Interfaz& ui) {
  if (elementos_.empty()) {
    NuevoElemento(ui);
    return;
  }
  if (!GuardarActual(ui)) return;
  PantallaInsertarElementos dónde(static_cast<long>(elementos_.size()));
  ui.Abrir(dónde);
  if (dónde.posición < 0) return;
  elementos_.insert(elementos_.begin() + dónde.posición, Elemento{});
  actual_ = dónde.posición + 1;
  Mostrar();
}

void PantallaElementos::EliminarElemento(Interfaz& ui) {
  if (actual_ < 1) return;
  if (!ui.Pregunta("Desea eleminar el elemento que se muestra en pantalla?")) return;
  elementos_.erase(elementos_.begin() + (actual_ - 1));
  actual_ = std::min<long>(actual_, static_cast<long>(elementos_.size()));
  if (!elementos_.empty()) {
    ui.Mensaje(
        "Luego de esto, vaya a la opción COORDENADAS DE NODOS Y elimine los nodos que ya no intervienen en el cálculo, "
        "debido a la eliminación de este elemento. No necesariamente la eliminación del elemento trae como "
        "consecuencia la eliminación de nodos. Si elimina algún nodo debe cambiar el número de algunos nodos tratando "
        "de tener una numeración continua, ejemplo 1,2,3,4,5 ....100 designando el nodo");
    ui.Mensaje(
        "Debe ir a la definición de elementos y dar los nuevos nodos para los elementos que han sido afectados. "
        "También debe ir a la opción nodos con restricción y eliminar los nodos que ya no intervienen.");
  }
  Mostrar();
}

void PantallaElementos::Aceptar(Interfaz& ui) {
  if (Mayúsculas(Recortar(texto("TextoTipoDeElemento"))) != "T") {
    ui.Mensaje("Para el tipo de elemento: Debe escribir T: elemento triangular");
    return;
  }
  if (!GuardarActual(ui)) return;
  const std::string cuadrático =
      "Si el número de ptos de integración para un elemento es 3, ese elemento triangular es de orden "
      "cuadrático(definidos por seis nodos). ";
  const std::string lados =
      cuadrático +
      "Por tanto en las cajas de texto identificadas con: Lado 1-2, Lado 2-3, Lado 3-1, debe escribirse SI ó NO. El "
      "elemento identificado con el número que está al final de este mensaje, en el lado ";
  for (std::size_t i = 0; i < elementos_.size(); ++i) {
    const Elemento& el = elementos_[i];
    const std::string número = std::to_string(i + 1);
    if (el.puntos == 1 && el.nodos.size() != 3) {
      ui.Mensaje(
          "Si el número de ptos de integración para un elemento es 1, ese elemento triangular es de orden lineal "
          "(definidos por tres nodos). El elemento identificado con el número que está al final de este mensaje, no "
          "cumple con los tres nodos: " +
          número);
      return;
    }
    if (el.puntos == 3 && el.nodos.size() != 6) {
      ui.Mensaje(cuadrático +
                 "El elemento identificado con el número que está al final de este mensaje, no cumple con los seis "
                 "nodos: " +
                 número);
      return;
    }
    if (el.nodos.size() == 6) {
      const std::pair<double, const char*> c[3] = {{el.lado12, "1-2"}, {el.lado23, "2-3"}, {el.lado31, "3-1"}};
      for (const auto& [código, lado] : c)
        if (código != 1 && código != 2) {
          ui.Mensaje(lados + lado + " no se ha indicado si existe o no, nodos intermedios: " + número);
          return;
        }
      // Repeated-node rule of the six-node element.
      const char* ordinal[3] = {"cuarto", "quinto", "sexto"};
      const char* esquina[3] = {"al número que identifica el primer nodo insertado", "al número que identifica el segundo nodo insertado",
                                "al número que identifica al tercer nodo insertado"};
      const char* nombreLado[3] = {"1-2", "2-3", "3-1"};
      const double código[3] = {el.lado12, el.lado23, el.lado31};
      for (int k = 0; k < 3; ++k) {
        const long n = el.nodos[Z(k + 3)];
        const std::string cabeza = std::string("El elemento triangular es de orden cuadrático(definidos por seis nodos). "
                                               "Cuando el Lado ") +
                                   nombreLado[k];
        const std::string cola =
            " El elemento identificado con el número que está al final de este mensaje no cumple con esta exigencia: " +
            número;
        if (código[k] == 2 && n != el.nodos[Z(k)]) {
          ui.Mensaje(cabeza + " es recto, el " + ordinal[k] + " nodo insertado debe ser igual " + esquina[k] + "." + cola);
          return;
        }
        if (código[k] == 1) {
          for (int j = 0; j < 6; ++j)
            if (j != k + 3 && el.nodos[Z(j)] == n) {
              ui.Mensaje(cabeza + " es curvo, el " + ordinal[k] +
                         " nodo insertado debe ser diferente a cualquier otro nodo dado para el elemento." + cola);
              return;
            }
        }
      }
    }
  }
  MallaElementos& m = p_.Malla;
  const long ne = static_cast<long>(elementos_.size());
  m.Elemento.Redimensionar(ne);
  for (long e = 1; e <= ne; ++e) {
    const Elemento& el = elementos_[Z(e - 1)];
    m.Elemento.NodosPorElemento[e] = static_cast<Entero>(el.nodos.size());
    m.Elemento.PuntosIntegración[e] = el.puntos;
    m.Elemento.Lado12[e] = el.lado12;
    m.Elemento.Lado23[e] = el.lado23;
    m.Elemento.Lado31[e] = el.lado31;
    m.Elemento.MaterialDeElemento[e] = el.material;
    for (std::size_t k = 0; k < el.nodos.size(); ++k)
      m.Elemento.NodoDeElemento(e, static_cast<long>(k + 1)) = static_cast<double>(el.nodos[k]);
  }
  m.NúmeroDeElementos = static_cast<Entero>(ne);
  CopiarNodosAElementos(p_);
  m.ElementosDefinidos = ne > 0;
  m.MallaRefinada = false;
  m.TipoDeElemento = "T";
  p_.DatosGuardados = false;
  cerrada = true;
}

void CopiarNodosAElementos(Proyecto& p) {
  MallaElementos& m = p.Malla;
  TablaElemento& t = m.Elemento;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const int nodos = t.NodosPorElemento.Leer(e);
    double sx = 0, sy = 0;
    for (int k = 1; k <= nodos; ++k) {
      const long n = std::lround(t.NodoDeElemento(e, k));
      for (long f = m.NúmeroDeNodos; f >= 1; --f)
        if (m.Nodo.NúmeroDeNodo[f] == n) {
          t.NúmeroElemento(e, k) = static_cast<double>(n);
          t.XElemento(e, k) = m.Nodo.XNodo[f];
          t.YElemento(e, k) = m.Nodo.YNodo[f];
          t.ZElemento(e, k) = m.Nodo.ZNodo[f];
          break;
        }
      sx += t.XElemento(e, k);
      sy += t.YElemento(e, k);
    }
    t.XCentroElemento[e] = nodos ? sx / nodos : 0;
    t.YCentroElemento[e] = nodos ? sy / nodos : 0;
  }
}

// ---------------------------------------------------------------------------------------------
// Materials of the elements

PantallaMateriales::PantallaMateriales(Proyecto& p) : p_(p) {
  nombre = "FormMateriales";
  título = "Caracterización de los elementos";
  campos = {{"TextoCaracterizaElemento", "Estrato del elemento:", "", "Número del estrato que da sus propiedades al elemento"}};
  listas = {{"ListaMaterialElementos", {"Elemento", "Material"}, {}, 0, [this](Interfaz& ui) { Seleccionar(ui); }}};
  botones = {{"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
             {"BotónCancelar", "&Cancelar", [this](Interfaz& ui) { Cancelar(ui); }}};
}

void PantallaMateriales::Activar(Interfaz&) {
  material_.clear();
  for (long e = 1; e <= p_.Malla.NúmeroDeElementos; ++e) material_.push_back(p_.Malla.Elemento.MaterialDeElemento.Leer(e));
  cambiado_ = false;
  lista("ListaMaterialElementos").seleccionada = 0;
  Mostrar();
}

void PantallaMateriales::Mostrar() {
  auto& l = lista("ListaMaterialElementos");
  l.filas.clear();
  for (std::size_t i = 0; i < material_.size(); ++i)
    l.filas.push_back({std::to_string(i + 1), material_[i] == 0 ? "" : Formato(material_[i], "#")});
}

void PantallaMateriales::Seleccionar(Interfaz&) {
  const auto& l = lista("ListaMaterialElementos");
  if (Seleccionada(l)) texto("TextoCaracterizaElemento") = l.filas[Z(l.seleccionada - 1)][1];
}

void PantallaMateriales::Modificar(Interfaz& ui) {
  const auto& l = lista("ListaMaterialElementos");
  if (!Seleccionada(l)) {
    ui.Mensaje(kSinFila);
    return;
  }
  const std::string& v = texto("TextoCaracterizaElemento");
  if (!EsNúmero(v)) {
    ui.Mensaje("Debe introducir un número que corresponda al estrato");
    return;
  }
  const double s = ANúmero(v);
  if (s != std::floor(s) || s < 1 || s > p_.NúmeroEstratos) {
    ui.Mensaje("Debe introducir un número que corresponda a determinado estrato");
    return;
  }
  material_[Z(l.seleccionada - 1)] = s;
  cambiado_ = true;
  Mostrar();
}

void PantallaMateriales::Aceptar(Interfaz& ui) {
  for (double v : material_)
    if (v == 0) {
      ui.Mensaje("Faltan datos. Debe introducir el número que caracteriza el elemento", "Número que caracteriza el elemento");
      return;
    }
  MallaElementos& m = p_.Malla;
  for (std::size_t i = 0; i < material_.size(); ++i) m.Elemento.MaterialDeElemento[static_cast<long>(i + 1)] = material_[i];
  m.NúmeroAnteriorDeElementos = m.NúmeroDeElementos;
  m.MaterialesAsignados = !material_.empty();
  p_.DatosGuardados = false;
  cerrada = true;
}

void PantallaMateriales::Cancelar(Interfaz& ui) {
  if (cambiado_ && ui.Pregunta("No desea archivar las características de los estratos?")) return;
  cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Restricted nodes

namespace {
const char* const kRevisarRestricciones =
    "Debido al incremento en el número de elementos para el análisis, revise en esta sesión 'Nodos con restricción' "
    "los nuevos  números asignados por el programa a los nodos con restricción que ya se habían insertado (por lo "
    "general estos nodos se ubican a una misma cota (ordenada) o en línea vertical (abscisa). Tome nota, en que "
    "ordenada y en que abscisa están ubicados). Luego vaya a la sesión 'Coordenadas de los nodos' y tome nota de los "
    "nodos que tienen la misma ordenada (línea horizontal) ó la misma abscisa (línea vertical) de los nodos con "
    "restricción ya existentes. Luego vaya nuevamente a la sesión 'Nodos con restricción' e inserte los nuevos nodos "
    "con restricción generados por el programa.";
}

PantallaRestricciones::PantallaRestricciones(Proyecto& p) : p_(p) {
  nombre = "FormRestricciones";
  título = "Condición de borde  (base de fundación y bordes laterales no afectados)";
  nota =
      "S: el nodo se desplaza en esa dirección (con resorte si su constante no es cero); N: no se desplaza. Las "
      "constantes de los resortes se dan en kg/cm. Un rodillo (S) debe llevar un resorte: con constante cero la "
      "matriz de rigidez queda con un cero en su diagonal.";
  campos = {{"TextoNodoRestringido", "Nodo:", "", ""},
            {"TextoRestricciónX", "Dirección x (S/N):", "", "S: con desplazamiento; N: sin desplazamiento"},
            {"TextoRestricciónY", "Dirección y (S/N):", "", "S: con desplazamiento; N: sin desplazamiento"},
            {"TextoRestricciónZ", "Dirección z (S/N):", "", "S: con desplazamiento; N: sin desplazamiento"},
            {"TextoResorteX", "Resorte x (kg/cm):", "", ""},
            {"TextoResorteY", "Resorte y (kg/cm):", "", ""},
            {"TextoResorteZ", "Resorte z (kg/cm):", "", ""}};
  listas = {{"ListaNodosConRestricción", {"Nodo", "x", "y", "z", "Resorte x", "Resorte y", "Resorte z"}, {}, 0,
             [this](Interfaz& ui) { Seleccionar(ui); }}};
  botones = {{"BotónAgregar", "&Agregar", [this](Interfaz& ui) { Agregar(ui); }},
             {"BotónModificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónBorrar", "&Borrar", [this](Interfaz& ui) { Borrar(ui); }},
             {"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }}};
}

void PantallaRestricciones::Activar(Interfaz& ui) {
  const MallaElementos& m = p_.Malla;
  const TablaNodoConRestricción& r = m.NodoConRestricción;
  filas_.clear();
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i)
    filas_.push_back({r.NodoRestringido.Leer(i), r.RestricciónX.Leer(i), r.RestricciónY.Leer(i), r.RestricciónZ.Leer(i),
                      r.ResorteX.Leer(i), r.ResorteY.Leer(i), r.ResorteZ.Leer(i)});
  // Exchange sort on the node number.
  for (std::size_t i = 0; i < filas_.size(); ++i)
    for (std::size_t j = i + 1; j < filas_.size(); ++j)
      if (filas_[j].nodo < filas_[i].nodo) std::swap(filas_[i], filas_[j]);
  lista("ListaNodosConRestricción").seleccionada = 0;
  Mostrar();
  if (m.MallaRefinada && !m.RestriccionesTrasRefinar) ui.Mensaje(kRevisarRestricciones);
}

void PantallaRestricciones::Mostrar() {
  auto& l = lista("ListaNodosConRestricción");
  l.filas.clear();
  for (const Fila& f : filas_)
    l.filas.push_back({Formato(f.nodo, "#"), f.rx, f.ry, f.rz, Valor(f.kx), Valor(f.ky), Valor(f.kz)});
  if (!Seleccionada(l)) l.seleccionada = 0;
}

void PantallaRestricciones::Seleccionar(Interfaz&) {
  const auto& l = lista("ListaNodosConRestricción");
  if (!Seleccionada(l)) return;
  const Fila& f = filas_[Z(l.seleccionada - 1)];
  texto("TextoNodoRestringido") = Formato(f.nodo, "#");
  texto("TextoRestricciónX") = f.rx;
  texto("TextoRestricciónY") = f.ry;
  texto("TextoRestricciónZ") = f.rz;
  texto("TextoResorteX") = Valor(f.kx);
  texto("TextoResorteY") = Valor(f.ky);
  texto("TextoResorteZ") = Valor(f.kz);
}

bool PantallaRestricciones::LeerCajas(Interfaz& ui, Fila& f) {
  const auto n = Entero16(texto("TextoNodoRestringido"));
  if (!n) {
    ui.Mensaje("Debe introducir un número entero");
    return false;
  }
  if (!ExisteNodo(p_, *n)) {
    ui.Mensaje("Debe introducir un número que corresponda a determinado elemento");
    return false;
  }
  f.nodo = static_cast<double>(*n);
  const std::pair<const char*, std::string*> letras[3] = {{"X", &f.rx}, {"Y", &f.ry}, {"Z", &f.rz}};
  for (const auto& [eje, destino] : letras) {
    const std::string v = Mayúsculas(Recortar(texto(std::string("TextoRestricción") + eje)));
    if (v != "S" && v != "N") {
      ui.Mensaje(std::string("Para la condición de restricción en <") + eje +
                 "> debe introducir una 'S para condición con desplazamiento' o una 'N para condición sin "
                 "desplazamiento'");
      return false;
    }
    *destino = v;
  }
  const std::pair<const char*, double*> resortes[3] = {{"x", &f.kx}, {"y", &f.ky}, {"z", &f.kz}};
  for (const auto& [eje, destino] : resortes) {
    const std::string& v = texto(std::string("TextoResorte") + static_cast<char>(std::toupper(*eje)));
    if (!EsNúmero(v)) {
      ui.Mensaje(std::string("Debe introducir un valor para la constante del resorte en dirección '") + eje +
                 "' incluyendo el cero cuando no exista desplazamiento en determinada dirección.");
      return false;
    }
    *destino = ANúmero(v);
  }
  return true;
}

void PantallaRestricciones::Agregar(Interfaz& ui) {
  Fila f;
  if (!LeerCajas(ui, f)) return;
  // A repeated node is told and still added.
  for (const Fila& g : filas_)
    if (g.nodo == f.nodo) {
      ui.Mensaje("Ya existe un nodo con restricción con el mismo número.");
      break;
    }
  auto donde = std::find_if(filas_.begin(), filas_.end(), [&](const Fila& g) { return g.nodo > f.nodo; });
  filas_.insert(donde, f);
  Mostrar();
}

void PantallaRestricciones::Modificar(Interfaz& ui) {
  auto& l = lista("ListaNodosConRestricción");
  if (!Seleccionada(l)) {
    ui.Mensaje(kSinFila);
    return;
  }
  Fila f;
  if (!LeerCajas(ui, f)) return;
  filas_.erase(filas_.begin() + (l.seleccionada - 1));
  auto donde = std::find_if(filas_.begin(), filas_.end(), [&](const Fila& g) { return g.nodo > f.nodo; });
  filas_.insert(donde, f);
  Mostrar();
}

void PantallaRestricciones::Borrar(Interfaz&) {
  auto& l = lista("ListaNodosConRestricción");
  if (!Seleccionada(l)) return;
  filas_.erase(filas_.begin() + (l.seleccionada - 1));
  l.seleccionada = 0;
  Mostrar();
}

void PantallaRestricciones::Aceptar(Interfaz& ui) {
  MallaElementos& m = p_.Malla;
  TablaNodoConRestricción& r = m.NodoConRestricción;
  const long n = static_cast<long>(filas_.size());
  r.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const Fila& f = filas_[Z(i - 1)];
    r.NodoRestringido[i] = f.nodo;
    r.RestricciónX[i] = f.rx;
    r.RestricciónY[i] = f.ry;
    r.RestricciónZ[i] = f.rz;
    r.ResorteX[i] = f.kx;
    r.ResorteY[i] = f.ky;
    r.ResorteZ[i] = f.kz;
  }
  m.NúmeroNodosConRestricción = static_cast<std::int32_t>(n);
  if (n > 0) m.NodosRestringidosDefinidos = true;
  if (m.MallaRefinada && !m.RestriccionesTrasRefinar) {
    ui.Mensaje(
        "Al presionar El Botón Aceptar, el programa considerará que ud ya insertó los nuevos Nodos con "
        "restricciones.");
    m.RestriccionesTrasRefinar = true;
  }
  if (ui.Pregunta("SI ud ELIMINÓ o INSERTÓ nodos con restricción, a través de las cajas de texto,  DEBE entonces "
                  "presionar SI en caso de que haya hecho alguna modificación, de lo contrario presione NO.")) {
    p_.Sísmico.MatricesSísmicasDadas = false;
    ui.Mensaje(
        "Ud. debe ir al menú de Elementos finitos y entrar a la sesión 'Estimación de los grados de libertad' y dar "
        "click para determinar nuevamente los grados de libertad y las respectivas matrices.");
  }
  p_.DatosGuardados = false;
  cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Uniform loads on element sides

PantallaCargasElementos::PantallaCargasElementos(Proyecto& p) : p_(p) {
  nombre = "FormCargasElementos";
  título = "Cargas uniformes distribuidas sobre los elementos";
  nota = "qx y qy en ton/m2, positivas cuando comprimen el talud. Los dos nodos son esquinas del elemento.";
  campos = {{"TextoCargaQx", "qx (ton/m2):", "", ""},
            {"TextoCargaQy", "qy (ton/m2):", "", ""},
            {"TextoNodoUno", "Nodo uno:", "", ""},
            {"TextoNodoDos", "Nodo dos:", "", ""}};
  listas = {{"ListaElementos", {"Elemento"}, {}, 0, [this](Interfaz& ui) { ElegirElemento(ui); }},
            {"ListaNodosElementos", {"Nodo"}, {}, 0, {}},
            {"ListaCargaDistribuidasSobreElementos", {"Elemento", "qx", "qy", "Nodo 1", "Nodo 2"}, {}, 0,
             [this](Interfaz& ui) { Seleccionar(ui); }}};
  botones = {{"BotónAgregar", "&Agregar", [this](Interfaz& ui) { Agregar(ui); }},
             {"BotónModificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónBorrar", "&Borrar", [this](Interfaz& ui) { Borrar(ui); }},
             {"BotónAceptar", "A&ceptar", [this](Interfaz& ui) { Aceptar(ui); }}};
}

void PantallaCargasElementos::Activar(Interfaz&) {
  const MallaElementos& m = p_.Malla;
  const TablaCargaElemento& c = m.CargaUniforme;
  filas_.clear();
  const long n = m.MallaRefinada ? m.NúmeroCargasRefinadas : m.NúmeroCargasUniformes;
  for (long i = 1; i <= n; ++i)
    filas_.push_back({c.ElementoDeCarga.Leer(i), c.CargaQx.Leer(i), c.CargaQy.Leer(i), c.NodoUnoCarga.Leer(i), c.NodoDosCarga.Leer(i)});
  actual_ = m.NúmeroDeElementos > 0 ? 1 : 0;
  auto& le = lista("ListaElementos");
  le.filas.clear();
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) le.filas.push_back({std::to_string(e)});
  Mostrar();
}

void PantallaCargasElementos::Mostrar() {
  lista("ListaElementos").seleccionada = static_cast<int>(actual_);
  auto& ln = lista("ListaNodosElementos");
  ln.filas.clear();
  for (int k = 1; k <= p_.Malla.Elemento.NodosPorElemento.Leer(actual_); ++k)
    ln.filas.push_back({Formato(p_.Malla.Elemento.NodoDeElemento.Leer(actual_, k), "#")});
  auto& l = lista("ListaCargaDistribuidasSobreElementos");
  l.filas.clear();
  for (const Fila& f : filas_)
    l.filas.push_back({Formato(f.elemento, "#"), Formato(f.qx, "#0.00"), Formato(f.qy, "#0.00"), Formato(f.nodo1, "#"), Formato(f.nodo2, "#")});
  if (!Seleccionada(l)) l.seleccionada = 0;
}

void PantallaCargasElementos::ElegirElemento(Interfaz& ui) {
  const long elegido = lista("ListaElementos").seleccionada;
  if (elegido < 1 || elegido > p_.Malla.NúmeroDeElementos) return;
  const int nodos = p_.Malla.Elemento.NodosPorElemento.Leer(actual_);
  if (nodos == 1 || nodos == 2) ui.Mensaje("Un elemento debe tener como mínimo 3 ptos");
  actual_ = elegido;
  Mostrar();
}

void PantallaCargasElementos::Seleccionar(Interfaz&) {
  const auto& l = lista("ListaCargaDistribuidasSobreElementos");
  if (!Seleccionada(l)) return;
  const Fila& f = filas_[Z(l.seleccionada - 1)];
  texto("TextoCargaQx") = NúmeroATexto(f.qx);
  texto("TextoCargaQy") = NúmeroATexto(f.qy);
  texto("TextoNodoUno") = Formato(f.nodo1, "#");
  texto("TextoNodoDos") = Formato(f.nodo2, "#");
}

bool PantallaCargasElementos::LeerCajas(Interfaz& ui, bool modificar, Fila& f) {
  const std::string cero = modificar ? " incluyendo el cero" : "";
  if (!EsNúmero(texto("TextoCargaQx"))) {
    ui.Mensaje("Debe introducir un valor para la carga uniformemente distribuida sobre el elemento en dirección ´X´" + cero);
    return false;
  }
  if (!EsNúmero(texto("TextoCargaQy"))) {
    ui.Mensaje("Debe introducir un valor para la carga uniformemente distribuida sobre el elemento en dirección ´Y´" + cero);
    return false;
  }
  auto delElemento = [&](double n) {
    for (int k = 1; k <= p_.Malla.Elemento.NodosPorElemento.Leer(actual_); ++k)
      if (p_.Malla.Elemento.NodoDeElemento.Leer(actual_, k) == n) return true;
    return false;
  };
  const std::pair<const char*, const char*> nodos[2] = {
      {"TextoNodoUno", "primer"}, {"TextoNodoDos", "segundo"}};
  const char* ajenos[2] = {
      "Debe introducir para el nodo uno donde actua la carga, un número de nodo que corresponda al elemento que tiene "
      "en frente.",
      "Debe introducir para el nodo dos donde actua la carga, un número de nodo que corresponda al elemento que tiene "
      "en frente."};
  double valor[2];
  for (int i = 0; i < 2; ++i) {
    std::string& caja = texto(nodos[i].first);
    if (!EsNúmero(caja)) {
      ui.Mensaje(std::string("Debe introducir el número que identifica al ") + nodos[i].second +
                 " nodo del  elemento que tiene en frente, donde actúa la carga uniformemente distribuida.");
      caja.clear();
      return false;
    }
    valor[i] = ANúmero(caja);
    if (!delElemento(valor[i])) {
      ui.Mensaje(ajenos[i]);
      caja.clear();
      return false;
    }
  }
  f = {static_cast<double>(actual_), ANúmero(texto("TextoCargaQx")), ANúmero(texto("TextoCargaQy")), valor[0], valor[1]};
  return true;
}

void PantallaCargasElementos::Agregar(Interfaz& ui) {
  Fila f;
  if (!LeerCajas(ui, false, f)) return;
  filas_.push_back(f);
  Mostrar();
}

void PantallaCargasElementos::Modificar(Interfaz& ui) {
  auto& l = lista("ListaCargaDistribuidasSobreElementos");
  if (!Seleccionada(l)) {
    ui.Mensaje(kSinFila);
    return;
  }
  const std::size_t i = Z(l.seleccionada - 1);
  Fila f;
  if (!LeerCajas(ui, true, f)) return;
  filas_.erase(filas_.begin() + static_cast<long>(i));
  filas_.push_back(f);
  Mostrar();
}

void PantallaCargasElementos::Borrar(Interfaz&) {
  auto& l = lista("ListaCargaDistribuidasSobreElementos");
  if (!Seleccionada(l)) return;
  filas_.erase(filas_.begin() + (l.seleccionada - 1));
  l.seleccionada = 0;
  Mostrar();
}

void PantallaCargasElementos::Aceptar(Interfaz&) {
  MallaElementos& m = p_.Malla;
  TablaCargaElemento& c = m.CargaUniforme;
  const long n = static_cast<long>(filas_.size());
  c.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const Fila& f = filas_[Z(i - 1)];
    c.ElementoDeCarga[i] = f.elemento;
    c.CargaQx[i] = f.qx;
    c.CargaQy[i] = f.qy;
    c.NodoUnoCarga[i] = f.nodo1;
    c.NodoDosCarga[i] = f.nodo2;
  }
  m.NúmeroCargasUniformes = static_cast<Entero>(n);
  m.NúmeroCargasRefinadas = static_cast<Entero>(n);
  m.CargasUniformesDefinidas = n > 0;
  p_.DatosGuardados = false;
  cerrada = true;
}

// ---------------------------------------------------------------------------------------------
// Elastic parameters of the strata

PantallaParámetrosEstratos::PantallaParámetrosEstratos(Proyecto& p) : p_(p) {
  nombre = "FormParámetrosEstratos";
  título = "Parámetros de los estratos";
  nota =
      "Propiedades elásticas de cada estrato para los análisis de esfuerzos. El análisis elástico-viscoplástico "
      "necesita una viscosidad mayor que cero. El estado es de deformación plana (tipo de esfuerzo 2).";
  campos = {{"TextoMóduloElasticidad", "Módulo de elasticidad E (ton/m2):", "", ""},
            {"TextoCoeficientePoisson", "Coeficiente de Poisson:", "", "Mayor que 0 y hasta 0.5"},
            {"TextoViscosidad", "Viscosidad:", "", ""},
            {"TextoCoeficienteKo", "Coeficiente Ko:", "", "Empuje lateral en reposo"},
            {"TextoIntervaloDeTiempo", "Intervalo de tiempo (s):", "", ""},
            {"TextoTipoEsfuerzo", "Tipo de esfuerzo:", "2", "2: deformación plana"},
            {"TextoEspesorAnálisis", "Espesor del análisis (m):", "", ""}};
  listas = {{"ListaEstratos", {"Estrato", "E", "Poisson", "Viscosidad", "Ko"}, {}, 0, [this](Interfaz& ui) { Seleccionar(ui); }}};
  botones = {{"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
             {"BotónCancelar", "&Cancelar", [this](Interfaz& ui) { Cancelar(ui); }}};
}

void PantallaParámetrosEstratos::Activar(Interfaz&) {
  const MallaElementos& m = p_.Malla;
  filas_.clear();
  for (long s = 1; s <= p_.NúmeroEstratos; ++s)
    filas_.push_back({m.MóduloElasticidad.Leer(s), m.CoeficientePoisson.Leer(s), p_.Estrato.Viscosidad.Leer(s),
                      p_.Estrato.CoeficienteKo.Leer(s)});
  texto("TextoIntervaloDeTiempo") = NúmeroATexto(m.IntervaloDeTiempo);
  texto("TextoTipoEsfuerzo") = std::to_string(m.TipoEsfuerzo);
  texto("TextoEspesorAnálisis") = NúmeroATexto(m.EspesorAnálisis);
  lista("ListaEstratos").seleccionada = 0;
  Mostrar();
}

void PantallaParámetrosEstratos::Mostrar() {
  auto& l = lista("ListaEstratos");
  l.filas.clear();
  for (std::size_t s = 0; s < filas_.size(); ++s) {
    std::vector<std::string> f{std::to_string(s + 1)};
    for (double v : filas_[s]) f.push_back(Valor(v));
    l.filas.push_back(f);
  }
}

void PantallaParámetrosEstratos::Seleccionar(Interfaz&) {
  const auto& l = lista("ListaEstratos");
  if (!Seleccionada(l)) return;
  const auto& f = filas_[Z(l.seleccionada - 1)];
  texto("TextoMóduloElasticidad") = NúmeroATexto(f[0]);
  texto("TextoCoeficientePoisson") = NúmeroATexto(f[1]);
  texto("TextoViscosidad") = NúmeroATexto(f[2]);
  texto("TextoCoeficienteKo") = NúmeroATexto(f[3]);
}

void PantallaParámetrosEstratos::Modificar(Interfaz& ui) {
  const auto& l = lista("ListaEstratos");
  if (!Seleccionada(l)) {
    ui.Mensaje(kSinFila);
    return;
  }
  struct Caja {
    const char* control;
    const char* mensaje;
    bool (*válido)(double);
  };
  const Caja cajas[4] = {
      {"TextoMóduloElasticidad", "Debe introducir un número mayor que cero para el módulo de elasticidad",
       [](double v) { return v > 0; }},
      {"TextoCoeficientePoisson", "Debe introducir un número mayor que cero y no mayor que 0.5 para el coeficiente de Poisson",
       [](double v) { return v > 0 && v <= 0.5; }},
      {"TextoViscosidad", "Debe introducir un número (cero o mayor) para la viscosidad", [](double v) { return v >= 0; }},
      {"TextoCoeficienteKo", "Debe introducir un número (cero o mayor) para el coeficiente Ko", [](double v) { return v >= 0; }}};
  std::vector<double> fila;
  for (const Caja& c : cajas) {
    if (!EsNúmero(texto(c.control)) || !c.válido(ANúmero(texto(c.control)))) {
      ui.Mensaje(c.mensaje);
      return;
    }
    fila.push_back(ANúmero(texto(c.control)));
  }
  filas_[Z(l.seleccionada - 1)] = fila;
  Mostrar();
}

void PantallaParámetrosEstratos::Aceptar(Interfaz& ui) {
  for (std::size_t s = 0; s < filas_.size(); ++s)
    if (filas_[s][0] <= 0 || filas_[s][1] <= 0) {
      ui.Mensaje("Faltan las propiedades elásticas del estrato " + std::to_string(s + 1) +
                 ". Selecciónelo en la lista, escriba sus valores y presione Modificar.");
      return;
    }
  if (!EsNúmero(texto("TextoIntervaloDeTiempo")) || ANúmero(texto("TextoIntervaloDeTiempo")) < 0) {
    ui.Mensaje("Debe introducir un número (cero o mayor) para el intervalo de tiempo");
    return;
  }
  if (!EsNúmero(texto("TextoTipoEsfuerzo")) || ANúmero(texto("TextoTipoEsfuerzo")) != 2) {
    ui.Mensaje("El tipo de esfuerzo debe ser 2 (deformación plana)");
    return;
  }
  if (!EsNúmero(texto("TextoEspesorAnálisis")) || ANúmero(texto("TextoEspesorAnálisis")) <= 0) {
    ui.Mensaje("Debe introducir un número mayor que cero para el espesor del análisis");
    return;
  }
  MallaElementos& m = p_.Malla;
  const long n = static_cast<long>(filas_.size());
  m.MóduloElasticidad.Redimensionar(n);
  m.CoeficientePoisson.Redimensionar(n);
  p_.Estrato.RedimensionarConservando(std::max<long>(n, p_.Estrato.Cohesión.Tamaño()));
  for (long s = 1; s <= n; ++s) {
    const auto& f = filas_[Z(s - 1)];
    m.MóduloElasticidad[s] = f[0];
    m.CoeficientePoisson[s] = f[1];
    p_.Estrato.Viscosidad[s] = f[2];
    p_.Estrato.CoeficienteKo[s] = f[3];
  }
  m.IntervaloDeTiempo = ANúmero(texto("TextoIntervaloDeTiempo"));
  m.TipoEsfuerzo = 2;
  m.EspesorAnálisis = ANúmero(texto("TextoEspesorAnálisis"));
  m.CaracterísticasElásticasDadas = n > 0;
  p_.ParámetrosEstratoCompletos = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void PantallaParámetrosEstratos::Cancelar(Interfaz&) { cerrada = true; }

// ---------------------------------------------------------------------------------------------
// Side files

std::string RutaArchivoCoordenadasNodos() { return RutaArchivoLateral("CarpetaCoordenadas", "coordenadas.cod"); }
std::string RutaArchivoElementos() { return RutaArchivoLateral("CarpetaElementos", "elementos.cod"); }

namespace {

Entero CuentaLateral(LectorSecuencial& l, const char* qué) {
  const double n = l.LeerReal();
  if (n < 0 || n != std::floor(n) || n > 32767) throw ErrorLectura(std::string("el número de ") + qué + " no es un entero positivo o cero");
  return static_cast<Entero>(n);
}

template <typename F>
LecturaLateral LeerLateral(const std::string& ruta, const char* qué, F leer) {
  LecturaLateral r;
  LectorSecuencial l("");
  try {
    l = LectorSecuencial::DeArchivo(ruta);
  } catch (const ErrorLectura&) {
    r.error = "No se encontró el archivo " + ruta + ". " + qué + " no se han cambiado.";
    return r;
  }
  r.abierto = true;
  try {
    leer(l);
  } catch (const ErrorLectura& e) {
    r.error = "Error leyendo el archivo " + ruta + ": " + e.what() + ". Se conserva lo leído hasta ese punto.";
  }
  return r;
}

}  // namespace

LecturaLateral LeerArchivoCoordenadasNodos(Proyecto& p, const std::string& ruta) {
  return LeerLateral(ruta, "Los nodos", [&](LectorSecuencial& l) {
    MallaElementos& m = p.Malla;
    const Entero n = CuentaLateral(l, "nodos");
    m.Nodo.Redimensionar(n);
    m.NúmeroDeNodos = 0;
    for (Entero f = 1; f <= n; ++f) {
      const double nodo = l.LeerReal();
      if (nodo != std::floor(nodo) || std::abs(nodo) > 32767) throw ErrorLectura("un número de nodo no es entero");
      m.Nodo.NúmeroDeNodo[f] = static_cast<Entero>(nodo);
      m.Nodo.XNodo[f] = l.LeerReal();
      m.Nodo.YNodo[f] = l.LeerReal();
      m.Nodo.ZNodo[f] = l.LeerReal();
      m.NúmeroDeNodos = f;
    }
    m.Nodo.RedimensionarConservando(m.NúmeroDeNodos);
    m.NodosDefinidos = m.NúmeroDeNodos > 0;
  });
}

LecturaLateral LeerArchivoElementos(Proyecto& p, const std::string& ruta) {
  return LeerLateral(ruta, "Los elementos", [&](LectorSecuencial& l) {
    MallaElementos& m = p.Malla;
    const Entero n = CuentaLateral(l, "elementos");
    m.Elemento.Redimensionar(n);
    m.NúmeroDeElementos = 0;
    for (Entero e = 1; e <= n; ++e) {
      double nodos[3];
      for (double& v : nodos) v = l.LeerReal();
      m.Elemento.NodosPorElemento[e] = 3;
      m.Elemento.PuntosIntegración[e] = 1;
      m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = 2;
      for (int k = 1; k <= 3; ++k) m.Elemento.NodoDeElemento(e, k) = nodos[k - 1];
      m.NúmeroDeElementos = e;
    }
    m.Elemento.RedimensionarConservando(m.NúmeroDeElementos);
    CopiarNodosAElementos(p);
    m.ElementosDefinidos = m.NúmeroDeElementos > 0;
    m.TipoDeElemento = "T";
  });
}

// ---------------------------------------------------------------------------------------------
// Menu commands

namespace {

// The offer of a side file: the question when the table exists, the question that names the
// folder, the read.
void OfrecerArchivo(Proyecto& p, Interfaz& ui, bool existe, const char* yaExisten, const char* carpeta,
                    LecturaLateral (*leer)(Proyecto&, const std::string&), const std::string& ruta) {
  if (existe && !ui.Pregunta(yaExisten)) return;
  if (!ui.Pregunta(carpeta)) return;
  const LecturaLateral r = leer(p, ruta);
  if (r.abierto) p.DatosGuardados = false;
  if (!r.error.empty()) ui.Mensaje(r.error, "Archivo de coordenadas");
}

bool EnElementosFinitos(const Proyecto& p, Interfaz& ui) {
  if (p.TipoDeAnálisis == "F") return true;
  ui.Mensaje(kNoEstáEnElementos);
  return false;
}

}  // namespace

void CaracterísticasElásticas(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  if (p.NúmeroEstratos < 1) {
    ui.Mensaje("Debe definir primero los estratos. Vaya al menú coordenadas.");
    return;
  }
  if (p.TipoDeMaterial == "R") {
    ui.Mensaje(
        "En roca las propiedades elásticas (módulo del macizo, Poisson, viscosidad) se dan con las características "
        "de la roca, en el menú Parámetros y Cargas.");
    return;
  }
  PantallaParámetrosEstratos pantalla(p);
  ui.Abrir(pantalla);
}

void MenúCoordenadasNodos(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  OfrecerArchivo(p, ui, p.Malla.NúmeroDeNodos > 0,
                 "Ya existen coordenadas de los nodos. Desea asignarlos de nuevo al programa  a partir de un archivo "
                 "existente? ",
                 "Existe una carpeta ya creada en c:\\ con el nombre CarpetaCoordenadas?. Esa carpeta contiene un "
                 "archivo con nombre 'coordenadas.cod', con el total de los nodos (número, abscisa, ordenada y cota) "
                 "que definen los elementos finitos.?",
                 LeerArchivoCoordenadasNodos, RutaArchivoCoordenadasNodos());
  PantallaNodos pantalla(p);
  ui.Abrir(pantalla);
}

void NodosParaCadaElemento(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  OfrecerArchivo(p, ui, p.Malla.NúmeroDeElementos > 0,
                 "Ya existen elementos definidos con sus respectivos nodos. Desea asignarlos de nuevo al programa  a "
                 "partir de un archivo existente? ",
                 "Existe una carpeta ya creada en c:\\ con el nombre CarpetaElementos?. Esa carpeta contiene un archivo "
                 "con nombre 'elementos.cod', con el total de los elementos y los tres nodos de las esquinas de cada "
                 "uno.?",
                 LeerArchivoElementos, RutaArchivoElementos());
  if (p.Malla.NúmeroDeNodos < 1) {
    ui.Mensaje("Debe definir primero los nodos", "defina los nodos");
    return;
  }
  PantallaElementos pantalla(p);
  ui.Abrir(pantalla);
}

void CaracterizaciónElementos(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  if (p.Malla.NúmeroDeElementos < 1 || p.NúmeroEstratos < 1) {
    ui.Mensaje("Debe definir primero los elementos y número de estratos", "número de elementos y número de estratos");
    return;
  }
  PantallaMateriales pantalla(p);
  ui.Abrir(pantalla);
}

void NodosConRestricción(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  if (p.Malla.NúmeroDeElementos < 1) {
    ui.Mensaje("Debe definir primero los elementos", "número de elementos restringidos");
    return;
  }
  PantallaRestricciones pantalla(p);
  ui.Abrir(pantalla);
}

void CargasUniformesSobreElementos(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  if (p.Malla.NúmeroDeElementos < 1) {
    ui.Mensaje("Debe definir primero los elementos", "número de elementos restringidos");
    return;
  }
  PantallaCargasElementos pantalla(p);
  ui.Abrir(pantalla);
}

void PresionesDePoros(Proyecto& p, Interfaz& ui) {
  if (p.TipoDeAnálisis != "F") {
    ui.Mensaje("Ud.está trabajando por métodos de equilibrio límites y no con elementos finitos.");
    return;
  }
  if (p.Malla.NúmeroDeElementos < 1 || !p.Malla.ElementosDefinidos) {
    ui.Mensaje("No se han definido los elementos finitos.");
    return;
  }
  Form34 pantalla(p, true);
  ui.Abrir(pantalla);
}

void GráficoGeometríaTaludEstratos(Proyecto& p, Interfaz& ui) {
  if (!EnElementosFinitos(p, ui)) return;
  if (p.NúmeroPuntosTalud < 2 && p.Malla.NúmeroDeElementos < 1) {
    ui.Mensaje("No hay coordenadas del talud ni elementos para dibujar.", "Geometría del problema");
    return;
  }
  ui.MostrarFigura(FiguraMalla(p));
}

}  // namespace lomaterra
