#include "pantallas/busqueda.h"

#include <cmath>
#include <sstream>

#include "equilibrio/puertas.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/busqueda_figura.h"

namespace lomaterra {

namespace {

const char* const kTítulo = "Búsqueda del círculo crítico";

// The options of the last search stay while the ground is the one they were made for.
struct Recuerdo {
  std::vector<double> suelo;
  OpcionesBúsqueda opciones;
  bool hay = false;
};
Recuerdo& Último() {
  static Recuerdo r;
  return r;
}
std::vector<double> Huella(const Proyecto& p) {
  std::vector<double> h;
  for (long k = 1; k <= p.NúmeroPuntosTalud; ++k) {
    h.push_back(p.CoordenadasTalud.X.Leer(k));
    h.push_back(p.CoordenadasTalud.Y.Leer(k));
  }
  return h;
}

std::string N2(double v) { return Formato(v, "#0.00"); }

}  // namespace

bool PuertaBúsqueda(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return false;
  if (p.TipoDeMaterial == "R") {
    ui.Mensaje("La búsqueda del círculo crítico es para suelos: Ud. ha considerado el material como una 'ROCA'.",
               kTítulo);
    return false;
  }
  std::string motivo;
  if (!PrepararSección(p, motivo)) {
    ui.Mensaje(motivo, kTítulo);
    return false;
  }
  return true;
}

void UsarCírculo(Proyecto& p, const CírculoEvaluado& c) {
  const bool crestaPrimero = c.xCresta >= c.xPie;
  p.NúmeroPuntosFalla = 2;
  p.CoordenadasFalla.Redimensionar(2);
  p.CoordenadasFalla.X[1] = crestaPrimero ? c.xCresta : c.xPie;
  p.CoordenadasFalla.Y[1] = crestaPrimero ? c.yCresta : c.yPie;
  p.CoordenadasFalla.X[2] = crestaPrimero ? c.xPie : c.xCresta;
  p.CoordenadasFalla.Y[2] = crestaPrimero ? c.yPie : c.yCresta;
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1;
  p.TramoFalla.PuntoFinal[1] = 2;
  p.TramoFalla.TipoUnión[1] = "C";
  p.GeometríaFallaDefinida = true;
  auto& pi = p.ParámetrosIniciales;
  pi.Radio = c.radio;
  pi.CentroX = c.xc;
  pi.CentroY = c.yc;
  pi.Cuerda = std::hypot(c.xCresta - c.xPie, c.yCresta - c.yPie);
  p.Trabajo.RadioActual = c.radio;
  p.Trabajo.RadioEnVariación = false;
  p.EtapaIntersecciones = p.EtapaQuiebres = p.EtapaDovelas = false;
  p.EtapaGeometría = p.EtapaEstratos = p.EtapaPoros = false;
  p.CálculoHecho = false;
  p.DatosGuardados = false;
  if (p.Ventana.TipoPanel == 2) CargarPanelCoordenadas(p, 2, 1);
}

PantallaBúsqueda::PantallaBúsqueda(Proyecto& p) : p_(p) {
  nombre = "BúsquedaCírculoCrítico";
  título = kTítulo;
  nota =
      "Malla rectangular de centros (dos esquinas y sus divisiones) y, para cada centro, radios de "
      "un rango o tangentes a las cotas dadas. Cada círculo se corta en dovelas de igual ancho "
      "entre sus dos cortes con el terreno; se pasan por alto los que no cortan el terreno dos "
      "veces entre las abscisas de salida o se salen de la sección.";
  botones = {
      {"BotónBuscar", "Buscar", [this](Interfaz& ui) { Buscar(ui); }},
      {"BotónDibujo", "Dibujo...", [this](Interfaz& ui) { Dibujo(ui); }},
      {"BotónUsarCírculo", "Usar este círculo", [this](Interfaz& ui) { Usar(ui); }},
      {"BotónCerrar", "Cerrar", [this](Interfaz&) { cerrada = true; }},
  };
}

void PantallaBúsqueda::Activar(Interfaz&) {
  Recuerdo& ú = Último();
  const OpcionesBúsqueda o = ú.hay && ú.suelo == Huella(p_) ? ú.opciones : OpcionesPorDefecto(p_);
  std::string cotas;
  for (double c : o.cotasTangencia) cotas += (cotas.empty() ? "" : " ") + NúmeroATexto(c);
  campos = {
      {"TextoX1", "Esquina 1 de la malla: X (m)", NúmeroATexto(o.x1), "", false},
      {"TextoY1", "Esquina 1 de la malla: Y (m)", NúmeroATexto(o.y1), "", false},
      {"TextoX2", "Esquina 2 de la malla: X (m)", NúmeroATexto(o.x2), "", false},
      {"TextoY2", "Esquina 2 de la malla: Y (m)", NúmeroATexto(o.y2), "", false},
      {"TextoDivisionesX", "Divisiones de la malla en X", std::to_string(o.divisionesX), "", false},
      {"TextoDivisionesY", "Divisiones de la malla en Y", std::to_string(o.divisionesY), "", false},
      {"TextoRadioMínimo", "Radio mínimo (m)", NúmeroATexto(o.radioMínimo), "", false},
      {"TextoRadioMáximo", "Radio máximo (m)", NúmeroATexto(o.radioMáximo), "", false},
      {"TextoPasoRadio", "Paso del radio (m)", NúmeroATexto(o.pasoRadio), "", false},
      {"TextoCotasTangencia", "Cotas de tangencia (m)", cotas,
       "Separadas por espacios. Si se dan, cada centro lleva un círculo tangente a cada cota y no "
       "se usa el rango de radios.",
       false},
      {"TextoDovelas", "Número de dovelas", std::to_string(o.dovelas), "", false},
      {"TextoMétodo", "Método (B: Bishop de referencia, J: Janbu)",
       o.método == MétodoBúsqueda::Janbu ? "J" : "B", "", false},
      {"TextoXSalidaMínima", "Abscisa mínima de salida (m)", NúmeroATexto(o.xSalidaMínima), "", false},
      {"TextoXSalidaMáxima", "Abscisa máxima de salida (m)", NúmeroATexto(o.xSalidaMáxima), "", false},
  };
  MostrarResultado();
}

void PantallaBúsqueda::MostrarResultado() {
  // The result fields follow the option fields; they are rebuilt after each search.
  while (!campos.empty() && campos.back().soloLectura) campos.pop_back();
  listas.clear();
  ListaPantalla l;
  l.nombre = "ListaCírculos";
  l.columnas = {"N°", "Xc (m)", "Yc (m)", "Radio (m)", "FS", "X pie (m)", "X cresta (m)"};
  if (r_.hay) {
    const CírculoEvaluado& c = r_.menores.front();
    campos.push_back({"TextoFactorMínimo", "Factor de seguridad mínimo", Formato(c.factor, "#0.000"),
                      NombreMétodoBúsqueda(janbu_), true});
    campos.push_back({"TextoCentroCrítico", "Centro del círculo crítico (m)", "(" + N2(c.xc) + ", " + N2(c.yc) + ")", "", true});
    campos.push_back({"TextoRadioCrítico", "Radio del círculo crítico (m)", N2(c.radio), "", true});
    campos.push_back({"TextoCírculos", "Círculos evaluados / admisibles",
                      std::to_string(r_.círculos) + " / " + std::to_string(r_.admisibles), "", true});
    for (std::size_t k = 0; k < r_.menores.size(); ++k) {
      const CírculoEvaluado& m = r_.menores[k];
      l.filas.push_back({std::to_string(k + 1), N2(m.xc), N2(m.yc), N2(m.radio), Formato(m.factor, "#0.000"),
                         N2(m.xPie), N2(m.xCresta)});
    }
  } else if (!r_.mensaje.empty()) {
    campos.push_back({"TextoFactorMínimo", "Resultado", r_.mensaje, "", true});
  }
  listas.push_back(std::move(l));
}

bool PantallaBúsqueda::LeerOpciones(Interfaz& ui, OpcionesBúsqueda& o) {
  auto número = [&](const char* nombre, double& destino) {
    const Campo& c = campo(nombre);
    if (!EsNúmero(Recortar(c.valor))) {
      ui.Mensaje("El valor de '" + c.etiqueta + "' debe ser un número.", kTítulo);
      return false;
    }
    destino = ANúmero(Recortar(c.valor));
    return true;
  };
  auto entero = [&](const char* nombre, int& destino) {
    double v = 0;
    if (!número(nombre, v)) return false;
    if (v != std::floor(v) || std::fabs(v) > 1e6) {
      ui.Mensaje("El valor de '" + campo(nombre).etiqueta + "' debe ser un número entero.", kTítulo);
      return false;
    }
    destino = static_cast<int>(v);
    return true;
  };
  if (!número("TextoX1", o.x1) || !número("TextoY1", o.y1) || !número("TextoX2", o.x2) ||
      !número("TextoY2", o.y2) || !entero("TextoDivisionesX", o.divisionesX) ||
      !entero("TextoDivisionesY", o.divisionesY))
    return false;
  o.cotasTangencia.clear();
  std::istringstream cotas(campo("TextoCotasTangencia").valor);
  for (std::string palabra; cotas >> palabra;) {
    if (!EsNúmero(palabra)) {
      ui.Mensaje("Las cotas de tangencia deben ser números separados por espacios.", kTítulo);
      return false;
    }
    o.cotasTangencia.push_back(ANúmero(palabra));
  }
  if (o.cotasTangencia.empty() &&
      (!número("TextoRadioMínimo", o.radioMínimo) || !número("TextoRadioMáximo", o.radioMáximo) ||
       !número("TextoPasoRadio", o.pasoRadio)))
    return false;
  if (!entero("TextoDovelas", o.dovelas)) return false;
  const std::string método = Mayúsculas(Recortar(campo("TextoMétodo").valor));
  if (método != "B" && método != "J") {
    ui.Mensaje("El método debe ser B (Bishop de referencia) o J (Janbu).", kTítulo);
    return false;
  }
  o.método = método == "J" ? MétodoBúsqueda::Janbu : MétodoBúsqueda::Bishop;
  if (!número("TextoXSalidaMínima", o.xSalidaMínima) || !número("TextoXSalidaMáxima", o.xSalidaMáxima))
    return false;
  const std::string error = ComprobarOpcionesBúsqueda(o);
  if (!error.empty()) {
    ui.Mensaje(error, kTítulo);
    return false;
  }
  return true;
}

void PantallaBúsqueda::Buscar(Interfaz& ui) {
  OpcionesBúsqueda o;
  if (!LeerOpciones(ui, o)) return;
  Último() = {Huella(p_), o, true};
  janbu_ = o.método == MétodoBúsqueda::Janbu;
  r_ = BuscarCírculoCrítico(p_, o, &ui);
  MostrarResultado();
  if (!r_.hay) {
    ui.Mensaje(r_.mensaje, kTítulo);
    return;
  }
  const CírculoEvaluado& c = r_.menores.front();
  ui.Estado("Círculo crítico: FS " + Formato(c.factor, "#0.000") + ", centro (" + N2(c.xc) + ", " +
            N2(c.yc) + "), radio " + N2(c.radio) + " m.");
}

void PantallaBúsqueda::Dibujo(Interfaz& ui) {
  if (!r_.hay) {
    ui.Mensaje("Primero haga la búsqueda con el botón 'Buscar'.", kTítulo);
    return;
  }
  ui.MostrarFigura(FiguraBúsqueda(p_, r_, janbu_));
}

void PantallaBúsqueda::Usar(Interfaz& ui) {
  if (!r_.hay) {
    ui.Mensaje("Primero haga la búsqueda con el botón 'Buscar'.", kTítulo);
    return;
  }
  const ListaPantalla& l = lista("ListaCírculos");
  const std::size_t k = l.seleccionada >= 1 && static_cast<std::size_t>(l.seleccionada) <= r_.menores.size()
                            ? static_cast<std::size_t>(l.seleccionada - 1)
                            : 0;
  const CírculoEvaluado& c = r_.menores[k];
  UsarCírculo(p_, c);
  ui.Mensaje("El círculo de centro (" + N2(c.xc) + ", " + N2(c.yc) + ") y radio " + N2(c.radio) +
                 " m es ahora la superficie de falla del proyecto (FS " + Formato(c.factor, "#0.000") +
                 " en la búsqueda). Calcule con cualquiera de los métodos en 'Calcular factor de "
                 "seguridad'.",
             kTítulo);
}

void BúsquedaCírculoCrítico(Proyecto& p, Interfaz& ui) {
  if (!PuertaBúsqueda(p, ui)) return;
  PantallaBúsqueda pantalla(p);
  ui.Abrir(pantalla);
}

}  // namespace lomaterra
