#include "pantallas/resultados_sismicos.h"

#include <cmath>

#include "elementos/seguridad_esfuerzos.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/resultados_sismicos.h"

namespace lomaterra {

const char* const kEncabezadoNodosSísmicos = "DESPLAZAMIENTOS (cm) -  ACELERACIÓN (m/seg2) - VELOCIDAD (m/seg)";
const char* const kEncabezadoElementosSísmicos = "ESFUERZOS (ton/m2)";

namespace {

const char* const kNoNumérico = "Debe introducir un valor numérico y entero";
const char* const kNoEntero = "Ud. debe dar un número entero";
const char* const kNoAnalizado =
    "Ese registro no existe o no fue analizado, debido a que los esfuerzos producidos por los registros anteriores, "
    "superaron la resistencia al cortante del suelo.";
const char* const kConRestricción =
    "El punto de coordenada seleccionado es un punto con restricción, sin desplazamiento en ninguna dirección";
const char* const kPista =
    "Si ud. da un valor en el recuadro REGISTRO QUE DESEA VER y presiona aceptar, entonces los resultados para ese "
    "registro se mostrarán en las listas de abajo. Un clic en un punto de coordenada muestra su registro estimado de "
    "aceleraciones; un clic en un elemento lo elige para las gráficas.";

std::string F3(double x) { return Formato(x, "#0.000"); }

long PasoElegido(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  return s.RegistroSeleccionado >= 1 && s.RegistroSeleccionado <= s.PasosCalculados ? s.RegistroSeleccionado : 0;
}

bool NodoExiste(const Proyecto& p, long n) {
  for (long r = 1; r <= p.Malla.NúmeroDeNodos; ++r)
    if (p.Malla.Nodo.NúmeroDeNodo.Leer(r) == n) return true;
  return false;
}

// The node for a chart: the one clicked, or the one of the largest displacement.
long NodoParaGráfica(const Proyecto& p, std::string& nota) {
  const long n = NodoElegidoSísmico();
  if (n >= 1 && NodoExiste(p, n) && !NodoSinDesplazamiento(p, n)) return n;
  nota = "Punto del desplazamiento máximo; elija otro con un clic en la pantalla de resultados del cálculo sísmico";
  return p.Sísmico.NodoMáximo;
}

// The element for a chart: the one clicked, or the one of largest shear stress at the step.
long ElementoParaGráfica(const Proyecto& p, long paso) {
  const long e = ElementoElegidoSísmico();
  if (e >= 1 && e <= p.Malla.NúmeroDeElementos) return e;
  long mejor = 1;
  for (long k = 2; k <= p.Malla.NúmeroDeElementos; ++k)
    if (std::abs(p.Sísmico.EsfuerzoXY.Leer(paso, k)) > std::abs(p.Sísmico.EsfuerzoXY.Leer(paso, mejor))) mejor = k;
  return mejor;
}

// The whole number in a text box: the two refusals of the result screen, in their order.
bool EnteroDeTexto(const std::string& texto, long& valor, Interfaz& ui) {
  const std::string t = Recortar(texto);
  if (!EsNúmero(t)) {
    ui.Mensaje(kNoNumérico);
    return false;
  }
  const double x = ANúmero(t);
  if (x != std::floor(x) || std::abs(x) > 1e9) {
    ui.Mensaje(kNoEntero);
    return false;
  }
  valor = static_cast<long>(x);
  return true;
}

}  // namespace

long& NodoElegidoSísmico() {
  static long n = 0;
  return n;
}

long& ElementoElegidoSísmico() {
  static long e = 0;
  return e;
}

bool HayResultadosSísmicos(const Proyecto& p, Interfaz& ui) {
  if (!p.Sísmico.ResultadosSísmicos || p.Sísmico.PasosCalculados < 1) {
    ui.Mensaje("Realice el cálculo para ver resultados  ", "No ha hecho el cálculo completo de esfuerzos:");
    return false;
  }
  return true;
}

bool NodoSinDesplazamiento(const Proyecto& p, long nodo) {
  const TablaNodoConRestricción& r = p.Malla.NodoConRestricción;
  for (long i = 1; i <= p.Malla.NúmeroNodosConRestricción; ++i)
    if (std::lround(r.NodoRestringido.Leer(i)) == nodo)
      return Mayúsculas(Recortar(r.RestricciónX.Leer(i))) == "N" && Mayúsculas(Recortar(r.RestricciónY.Leer(i))) == "N";
  return false;
}

// --- The result screen ---------------------------------------------------------------------------

PantallaResultadosSísmicos::PantallaResultadosSísmicos(Proyecto& p) : p_(p) {
  nombre = "FormResultadosSísmicos";
  título = "Resultados del cálculo sísmico";
  campos = {{"Texto_Del_Registro_Que_Ud_Ver", "REGISTRO QUE DESEA VER:", "", "Número del registro (paso) que desea ver"},
            {"TextoTotalRegistrosSismicos", "Total de registros sismicos analizados:", "", "", true},
            {"TextoFactorSeguridadDeslizamiento", "Factor de seguridad al deslizamiento:", "", "", true},
            {"TextoPtoCoordenadaParaRegistro", "Punto de coordenada para el registro:", "", "", true},
            {"TextoElementoParaGráficas", "Elemento para las gráficas:", "", "", true}};
  listas = {{"ResultadosDeLosDesplazamientosSísmo",
             {"Pto Cord.", "desp_x", "desp_y", "acel_x", "acel_y", "vel_x", "vel_y"},
             {},
             0,
             [this](Interfaz& ui) { ClicEnNodo(lista("ResultadosDeLosDesplazamientosSísmo").seleccionada, ui); }},
            {"ResultadosDeLosEsfuerzosSísmo",
             {"Elemento.", "sigma_x", "sigma_y", "tau_xy", "sigma_1", "sigma_3", "presión_poros", "G_actual"},
             {},
             0,
             [this](Interfaz&) { ClicEnElemento(lista("ResultadosDeLosEsfuerzosSísmo").seleccionada); }}};
  botones = {{"BotónAceptar", "Aceptar",
              [this](Interfaz& ui) {
                long k = 0;
                if (!EnteroDeTexto(texto("Texto_Del_Registro_Que_Ud_Ver"), k, ui)) return;
                if (k < 1 || k > p_.Sísmico.PasosCalculados) {
                  ui.Mensaje(kNoAnalizado);
                  return;
                }
                p_.Sísmico.RegistroSeleccionado = static_cast<DatosSísmicos::Entero>(k);
                Llenar(k);
              }},
             {"BotónGráficas", "Gráficas...",
              [this](Interfaz& ui) {
                PantallaGráficasSísmicas g(p_);
                ui.Abrir(g);
              }},
             {"BotónSalir", "Salir", [this](Interfaz&) { cerrada = true; }}};
}

std::string PantallaResultadosSísmicos::Encabezado(const std::string& l) const {
  if (l == "ResultadosDeLosDesplazamientosSísmo") return kEncabezadoNodosSísmicos;
  if (l == "ResultadosDeLosEsfuerzosSísmo") return kEncabezadoElementosSísmicos;
  return "";
}

void PantallaResultadosSísmicos::Activar(Interfaz& ui) {
  if (!HayResultadosSísmicos(p_, ui)) {
    cerrada = true;
    return;
  }
  cerrada = false;
  const DatosSísmicos& s = p_.Sísmico;
  nota = std::string(kPista) + "\n" + EstadoDelCálculoSísmico(p_);
  texto("TextoTotalRegistrosSismicos") = std::to_string(s.PasosCalculados);
  texto("TextoFactorSeguridadDeslizamiento") = p_.Malla.FSSísmico > 0 ? Formato(p_.Malla.FSSísmico, "#0.00") : "";
  const long n = NodoElegidoSísmico();
  texto("TextoPtoCoordenadaParaRegistro") = n >= 1 && NodoExiste(p_, n) ? std::to_string(n) : "";
  const long e = ElementoElegidoSísmico();
  texto("TextoElementoParaGráficas") = e >= 1 && e <= p_.Malla.NúmeroDeElementos ? std::to_string(e) : "";
  const long k = PasoElegido(p_);
  texto("Texto_Del_Registro_Que_Ud_Ver") = k >= 1 ? std::to_string(k) : "";
  Llenar(k);
}

void PantallaResultadosSísmicos::Llenar(long paso) {
  const DatosSísmicos& s = p_.Sísmico;
  const MallaElementos& m = p_.Malla;
  auto& ln = lista("ResultadosDeLosDesplazamientosSísmo");
  auto& le = lista("ResultadosDeLosEsfuerzosSísmo");
  ln.filas.clear();
  le.filas.clear();
  ln.seleccionada = le.seleccionada = 0;
  if (paso < 1) return;
  for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
    const long k = m.Nodo.NúmeroDeNodo.Leer(r);
    ln.filas.push_back(FilaDeNodoSísmico(s, paso, k));
  }
  for (long e = 1; e <= m.NúmeroDeElementos; ++e)
    le.filas.push_back({std::to_string(e), F3(s.EsfuerzoX.Leer(paso, e)), F3(s.EsfuerzoY.Leer(paso, e)),
                        F3(s.EsfuerzoXY.Leer(paso, e)), F3(s.EsfuerzoMayor.Leer(paso, e)), F3(s.EsfuerzoMenor.Leer(paso, e)),
                        F3(s.PresiónPorosSísmica.Leer(paso, e)), F3(s.MóduloCortanteActual.Leer(paso, e))});
}

void PantallaResultadosSísmicos::ClicEnNodo(long fila, Interfaz& ui) {
  const auto& filas = lista("ResultadosDeLosDesplazamientosSísmo").filas;
  if (fila < 1 || fila > static_cast<long>(filas.size())) return;
  const long n = p_.Malla.Nodo.NúmeroDeNodo.Leer(fila);
  if (NodoSinDesplazamiento(p_, n)) {
    ui.Mensaje(kConRestricción);
    return;
  }
  NodoElegidoSísmico() = n;
  texto("TextoPtoCoordenadaParaRegistro") = std::to_string(n);
  GraficaDeRegistroSísmicoEstimadoDeAceleraciones(p_, ui);
}

void PantallaResultadosSísmicos::ClicEnElemento(long fila) {
  if (fila < 1 || fila > p_.Malla.NúmeroDeElementos) return;
  ElementoElegidoSísmico() = fila;
  texto("TextoElementoParaGráficas") = std::to_string(fila);
}

// --- The chart screen ----------------------------------------------------------------------------

PantallaGráficasSísmicas::PantallaGráficasSísmicas(Proyecto& p) : p_(p) {
  nombre = "FormGráficasSísmicas";
  título = "Gráficas del cálculo sísmico";
  nota = "Las historias en el tiempo son del punto de coordenada y del elemento indicados; la malla deformada y los "
         "contornos, del registro indicado. Esfuerzo de los contornos: x, y, xy, 1 (mayor) ó 3 (menor).";
  campos = {{"TextoNodoGráfica", "Punto de coordenada (nodo):", "", ""},
            {"TextoElementoGráfica", "Elemento:", "", ""},
            {"TextoRegistroGráfica", "Registro:", "", ""},
            {"TextoEsfuerzoContornos", "Esfuerzo de los contornos:", "y", ""}};
  auto nodo = [this](MagnitudNodo q) {
    return [this, q](Interfaz& ui) {
      long n = 0;
      if (LeerNodo(n, ui)) ui.MostrarFigura(FiguraHistoriaNodo(p_, n, q));
    };
  };
  botones = {
      {"BotónDesplazamientos", "Desplazamientos", nodo(MagnitudNodo::Desplazamiento)},
      {"BotónVelocidades", "Velocidades", nodo(MagnitudNodo::Velocidad)},
      {"BotónAceleraciones", "Aceleraciones", nodo(MagnitudNodo::Aceleración)},
      {"BotónEsfuerzos", "Esfuerzos",
       [this](Interfaz& ui) {
         long e = 0;
         if (LeerElemento(e, ui)) ui.MostrarFigura(FiguraEsfuerzosElemento(p_, e));
       }},
      {"BotónDegradación", "G/Gmax y amortiguamiento",
       [this](Interfaz& ui) {
         long e = 0;
         if (LeerElemento(e, ui)) ui.MostrarFigura(FiguraDegradaciónElemento(p_, e));
       }},
      {"BotónFactorSeguridad", "Factor de seguridad",
       [this](Interfaz& ui) {
         const auto f = FactoresSísmicosPorPaso(p_);
         if (f.empty()) {
           ui.Mensaje("No se pudo estimar el factor de seguridad en ningún registro. Revise los 'Parámetros para "
                      "estimar el factor de seguridad' en elementos finitos y la superficie potencial de falla.",
                      "Factor de seguridad:");
           return;
         }
         ui.MostrarFigura(FiguraFactorSísmicoPorPaso(p_, f));
       }},
      {"BotónDesplazamientoMáximo", "Desplazamiento máximo",
       [this](Interfaz& ui) { ui.MostrarFigura(FiguraDesplazamientoMáximoPorPaso(p_)); }},
      {"BotónMallaDeformada", "Malla deformada",
       [this](Interfaz& ui) {
         long k = 0;
         if (LeerPaso(k, ui)) ui.MostrarFigura(FiguraDeMallaSísmica(p_, "MallaDeformada", k));
       }},
      {"BotónContornos", "Contornos",
       [this](Interfaz& ui) {
         long k = 0;
         if (!LeerPaso(k, ui)) return;
         const std::string q = Recortar(texto("TextoEsfuerzoContornos"));
         const char* figura = q == "x" || q == "X"   ? "EsfuerzosSigmaXVsElementos"
                              : q == "y" || q == "Y" ? "EsfuerzosSigmaYVsElementos"
                              : q == "xy" || q == "XY" ? "EsfuerzosTauXYVsElementos"
                              : q == "1"             ? "EsfuerzosSigma1VsElementos"
                              : q == "3"             ? "EsfuerzosSigma3VsElementos"
                                                     : nullptr;
         if (!figura) {
           ui.Mensaje("Esfuerzo de los contornos: escriba x, y, xy, 1 ó 3.");
           return;
         }
         ui.MostrarFigura(FiguraDeMallaSísmica(p_, figura, k));
       }},
      {"BotónSalir", "Salir", [this](Interfaz&) { cerrada = true; }}};
}

void PantallaGráficasSísmicas::Activar(Interfaz& ui) {
  if (!HayResultadosSísmicos(p_, ui)) {
    cerrada = true;
    return;
  }
  cerrada = false;
  std::string porQué;
  const long k = PasoElegido(p_) >= 1 ? PasoElegido(p_) : p_.Sísmico.PasosCalculados;
  texto("TextoNodoGráfica") = std::to_string(NodoParaGráfica(p_, porQué));
  texto("TextoElementoGráfica") = std::to_string(ElementoParaGráfica(p_, k));
  texto("TextoRegistroGráfica") = std::to_string(k);
}

bool PantallaGráficasSísmicas::LeerEntero(const std::string& c, long& v, Interfaz& ui) {
  return EnteroDeTexto(texto(c), v, ui);
}

bool PantallaGráficasSísmicas::LeerNodo(long& n, Interfaz& ui) {
  if (!LeerEntero("TextoNodoGráfica", n, ui)) return false;
  if (!NodoExiste(p_, n)) {
    ui.Mensaje("Ese punto de coordenada no existe en la malla.");
    return false;
  }
  if (NodoSinDesplazamiento(p_, n)) {
    ui.Mensaje(kConRestricción);
    return false;
  }
  return true;
}

bool PantallaGráficasSísmicas::LeerElemento(long& e, Interfaz& ui) {
  if (!LeerEntero("TextoElementoGráfica", e, ui)) return false;
  if (e < 1 || e > p_.Malla.NúmeroDeElementos) {
    ui.Mensaje("Ese elemento no existe en la malla.");
    return false;
  }
  return true;
}

bool PantallaGráficasSísmicas::LeerPaso(long& k, Interfaz& ui) {
  if (!LeerEntero("TextoRegistroGráfica", k, ui)) return false;
  if (k < 1 || k > p_.Sísmico.PasosCalculados) {
    ui.Mensaje(kNoAnalizado);
    return false;
  }
  return true;
}

// --- Menu commands -------------------------------------------------------------------------------

void ResultadosDeEsfuerzosDesplazamientosPorSísmo(Proyecto& p, Interfaz& ui) {
  if (!HayResultadosSísmicos(p, ui)) return;
  PantallaResultadosSísmicos f(p);
  ui.Abrir(f);
}

void GraficaDeRegistroSísmicoEstimadoDeAceleraciones(Proyecto& p, Interfaz& ui) {
  if (!HayResultadosSísmicos(p, ui)) return;
  std::string porQué;
  const long n = NodoParaGráfica(p, porQué);
  ui.MostrarFigura(FiguraHistoriaNodo(p, n, MagnitudNodo::Aceleración, porQué));
}

void ImprimirResultadosAnálisisSísmico(Proyecto& p, Interfaz& ui) {
  if (!HayResultadosSísmicos(p, ui)) return;
  ui.Imprimir(InformeSísmico(p));
}

void EnlazarComandosResultadosSísmicos(std::map<std::string, Acción>& a) {
  a["ResultadosDeEsfuerzosDesplazamientosPorSísmo"] = ResultadosDeEsfuerzosDesplazamientosPorSísmo;
  a["GraficaDeRegistroSísmicoEstimadoDeAceleraciones"] = GraficaDeRegistroSísmicoEstimadoDeAceleraciones;
  a["ImprimirResultadosAnálisisSísmico"] = ImprimirResultadosAnálisisSísmico;
  a["FactorDeSeguridadDeslizamientoAnálisisSísmico"] = FactorDeSeguridadDeslizamientoAnálisisSísmico;
}

}  // namespace lomaterra
