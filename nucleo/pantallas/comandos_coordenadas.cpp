#include "pantallas/comandos_coordenadas.h"

#include <algorithm>
#include <string>

#include "pantallas/archivo_lateral.h"
#include "pantallas/form4.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr const char* kTítuloInformación = "Información requerida";
constexpr const char* kFaltaInformación =
    "Debe dar la información del proyecto. Entre al menú 'Archivo'";

bool InformaciónRequerida(Proyecto& p, Interfaz& ui) {
  if (p.InformaciónDada) return true;
  ui.Mensaje(kFaltaInformación, kTítuloInformación);
  return false;
}

// The panel goes back into the table it came from, then the table asked for comes into it.
void CambiarPanel(Proyecto& p, int tipo, int estrato) {
  EstadoVentana& v = p.Ventana;
  GuardarPanelCoordenadas(p, v.TipoPanel, v.EstratoPanel);
  CargarPanelCoordenadas(p, tipo, estrato);
  v.EstratoSeleccionado = tipo == 4 ? estrato : v.EstratoSeleccionado;
}

// Row moves of one column of a stratum table. A column that was never dimensioned (the columns of
// the other material, say) stays so; one shorter than the count grows to it.
template <typename T>
void AbrirFila(Tabla<T>& t, long n, long k, bool siempre = false) {
  if (t.Tamaño() == 0 && !siempre) return;
  t.RedimensionarConservando(std::max(t.Tamaño(), n + 1));
  for (long i = n; i >= k; --i) t[i + 1] = t[i];
  t[k] = T{};
}

template <typename T>
void CerrarFila(Tabla<T>& t, long n, long k) {
  const long último = std::min(n, t.Tamaño());
  if (k > último) return;
  for (long i = k; i < último; ++i) t[i] = t[i + 1];
  t[último] = T{};
}

template <typename T>
void AbrirFila(Tabla2<T>& t, long n, long k, bool siempre = false) {
  if (t.Filas() == 0 && !siempre) return;
  t.RedimensionarConservando(std::max(t.Filas(), n + 1), t.Columnas());
  for (long i = n; i >= k; --i)
    for (long j = 0; j <= t.Columnas(); ++j) t(i + 1, j) = t(i, j);
  for (long j = 0; j <= t.Columnas(); ++j) t(k, j) = T{};
}

template <typename T>
void CerrarFila(Tabla2<T>& t, long n, long k) {
  const long último = std::min(n, t.Filas());
  if (k > último) return;
  for (long i = k; i < último; ++i)
    for (long j = 0; j <= t.Columnas(); ++j) t(i, j) = t(i + 1, j);
  for (long j = 0; j <= t.Columnas(); ++j) t(último, j) = T{};
}

// Every table with one row a stratum, whatever it is for, so that no row lags behind.
template <typename F>
void CadaColumnaDeEstrato(Proyecto& p, F&& f) {
  TablaEstrato& e = p.Estrato;
  for (Tabla<double>* t : {&e.Cohesión,
                           &e.Fricción,
                           &e.PesoUnitarioHúmedo,
                           &e.PesoUnitarioSaturado,
                           &e.ParámetroPresión,
                           &e.CoeficienteConsolidaciónVertical,
                           &e.TiempoDeConstrucción,
                           &e.m_intacta,
                           &e.Parámetro_GSI,
                           &e.m_macizo,
                           &e.s_macizo,
                           &e.C_Simple,
                           &e.VelocidadCorte,
                           &e.VelocidadLongitudinal,
                           &e.Poisson,
                           &e.Viscosidad,
                           &e.ResistenciaMacizo,
                           &e.ModuloMacizo,
                           &e.ResistenciaCorteMacizo,
                           &e.CoeficienteKo})
    f(*t);
  f(e.TipoEstrato);
  f(p.Roca.PuntosEnsayo);
  f(p.Roca.EnsayoSigma1);
  f(p.Roca.EnsayoSigma3);
  DatosSísmicos& s = p.Sísmico;
  for (Tabla<double>* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                           &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
    f(*t);
  f(s.Determinante);
}

}  // namespace

void AbrirFilaDeEstrato(Proyecto& p, int posición) {
  const long n = p.NúmeroEstratos;
  const long k = std::clamp<long>(posición, 1, n + 1);
  AbrirFila(p.PuntosEstrato, n, k, true);
  AbrirFila(p.XEstrato, n, k, true);
  AbrirFila(p.YEstrato, n, k, true);
  CadaColumnaDeEstrato(p, [&](auto& t) { AbrirFila(t, n, k); });
  p.NúmeroEstratos = static_cast<Entero>(n + 1);
}

void CerrarFilaDeEstrato(Proyecto& p, int estrato) {
  const long n = p.NúmeroEstratos;
  if (estrato < 1 || estrato > n) return;
  CerrarFila(p.PuntosEstrato, n, estrato);
  CerrarFila(p.XEstrato, n, estrato);
  CerrarFila(p.YEstrato, n, estrato);
  CadaColumnaDeEstrato(p, [&](auto& t) { CerrarFila(t, n, estrato); });
  p.NúmeroEstratos = static_cast<Entero>(n - 1);
}

void MenúCoordenadasTalud(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  CambiarPanel(p, 1, 1);
}

void MenúCoordenadasFalla(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  CambiarPanel(p, 2, 1);
}

void MenúCoordenadasFreático(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  CambiarPanel(p, 3, 1);
}

void MenúCoordenadasEstratos(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  if (p.NúmeroEstratos < 1) {
    ui.Mensaje(
        "Actualmente no hay estratos. Seleccione primero una de las opciones: \nInsertar estrato");
    return;
  }
  const int elegido = p.Ventana.EstratoSeleccionado;
  CambiarPanel(p, 4, elegido >= 1 && elegido <= p.NúmeroEstratos ? elegido : 1);
}

void MenúInsertarEstrato(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  const char* títuloFalta = "Información por dar::";
  if (!p.CaracterísticasSueloCompletas) {
    ui.Mensaje(
        "Falta darle al programa las Características geomecánicas (menú parámetros y cargas) de un "
        "estrato ya insertado para ser considerado como un suelo.",
        títuloFalta);
    return;
  }
  if (!p.CaracterísticasRocaCompletas) {
    ui.Mensaje(
        "Falta darle al programa las Características geomecánicas (menú parámetros y cargas) de un "
        "estrato ya insertado para ser considerado como una roca.",
        títuloFalta);
    return;
  }
  if (!p.ParámetrosEstratoCompletos) {
    ui.Mensaje(
        "Falta darle al programa los Parámetros de los estratos (menú elementos finitos) de un "
        "estrato "
        "ya insertado para el cálculo elástico, viscoplástico o plástico.",
        títuloFalta);
    return;
  }
  if (!p.ParámetrosSísmicosCompletos) {
    ui.Mensaje(
        "Falta darle al programa los Parámetros de los estratos para el cálculo sísmico (menú "
        "elementos "
        "finitos) de un estrato ya insertado.",
        títuloFalta);
    return;
  }
  // With no strata the new one is stratum 1 and there is nothing to choose.
  int posición = 1;
  if (p.NúmeroEstratos > 0) {
    Form4 dónde(p);
    ui.Abrir(dónde);
    if (dónde.Posición == 0) return;
    posición = dónde.Posición;
  }
  EstadoVentana& v = p.Ventana;
  GuardarPanelCoordenadas(p, v.TipoPanel, v.EstratoPanel);
  AbrirFilaDeEstrato(p, posición);
  // The new stratum waits for its characteristics on the screens already filled for the others.
  if (p.TipoDeMaterial == "S") p.CaracterísticasSueloCompletas = false;
  if (p.TipoDeMaterial == "R") p.CaracterísticasRocaCompletas = false;
  if (p.Malla.CaracterísticasElásticasDadas) p.ParámetrosEstratoCompletos = false;
  if (p.Sísmico.ParámetrosSísmicosDados) p.ParámetrosSísmicosCompletos = false;
  p.EstratosCaracterizados = false;
  p.DatosGuardados = false;
  v.ReconstruirListaEstrato(p.NúmeroEstratos);
  CargarPanelCoordenadas(p, 4, posición);
  v.EstratoSeleccionado = posición;
  ui.Mensaje(
      "YA SE INSERTÓ EL ESTRATO: Ahora vaya inmediatamente al menú 'Parámetros y Cargas' y dé las "
      "'Características Geomecánicas' del estrato insertado. Si trabaja con elementos finitos, "
      "vaya "
      "también al menú 'Elementos finitos' y dé los 'Parámetros de los estratos' y los 'Parámetros "
      "de "
      "los estratos para el cálculo sísmico' del estrato insertado.",
      "Insertar estrato");
}

void MenúEliminarEstrato(Proyecto& p, Interfaz& ui) {
  EstadoVentana& v = p.Ventana;
  const int s = v.EstratoPanel;
  if (v.TipoPanel != 4 || s < 1 || s > p.NúmeroEstratos) {
    ui.Mensaje("Seleccione la opción coordenadas estrato");
    return;
  }
  if (!ui.Pregunta("Desea eleminar el estrato que se muestra en pantalla?")) return;
  if (p.TipoDeMaterial.empty()) {
    ui.Mensaje(
        "Por favor vaya a la opción PARAMETROS INICIALES DE CALCULO e indique si está trabajando "
        "en "
        "SUELO o ROCA");
    return;
  }
  CerrarFilaDeEstrato(p, s);
  p.DatosGuardados = false;
  v.ReconstruirListaEstrato(p.NúmeroEstratos);
  // The panel held the stratum just deleted: it now shows the one that took its place, or the
  // surface when no stratum is left.
  if (p.NúmeroEstratos > 0) {
    const int siguiente = std::min<int>(s, p.NúmeroEstratos);
    CargarPanelCoordenadas(p, 4, siguiente);
    v.EstratoSeleccionado = siguiente;
  } else {
    CargarPanelCoordenadas(p, 1, 1);
  }
}

void MenúEliminarNivelFreático(Proyecto& p, Interfaz& ui) {
  EstadoVentana& v = p.Ventana;
  if (p.NúmeroPuntosFreático > 0) {
    if (!ui.Pregunta("Desea eleminar las coordenadas del nivel freático?")) return;
    p.NúmeroPuntosFreático = 0;
    p.CoordenadasFreático.Borrar();
    // A panel that shows the line would bring it back when stored.
    if (v.TipoPanel == 3) {
      v.ListaCoordenadas.clear();
      v.FilaSeleccionada = 0;
    }
    p.DatosGuardados = false;
    return;
  }
  if (v.TipoPanel == 3 && !v.ListaCoordenadas.empty()) {
    if (!ui.Pregunta("Desea eliminar todas las coordenadas y que serán las correspondientes al "
                     "nivel freático?"))
      return;
    v.ListaCoordenadas.clear();
    v.FilaSeleccionada = 0;
    p.DatosGuardados = false;
    return;
  }
  ui.Mensaje("Seleccione la opción coordenadas nivel freático");
}

void MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(Proyecto& p, Interfaz& ui) {
  if (!InformaciónRequerida(p, ui)) return;
  EstadoVentana& v = p.Ventana;
  GuardarPanelCoordenadas(p, v.TipoPanel, v.EstratoPanel);
  auto mostrarTalud = [&] {
    CargarPanelCoordenadas(p, 1, 1);
    v.EstratoSeleccionado = 0;
  };
  if ((p.NúmeroPuntosTalud > 0 || p.NúmeroEstratos > 0) &&
      !ui.Pregunta(
          "Ya existen coordenadas de la superficie del talud y número de estratos. Desea cargar la "
          "geometría del talud, de los estratos y nivel freático, a partir de un archivo ya "
          "creado.?")) {
    mostrarTalud();
    return;
  }
  if (!ui.Pregunta(
          "Existe una carpeta ya creada en c:\\ con el nombre CarpetaTaludEstratoNF?. Esa carpeta "
          "contiene un archivo con nombre 'taludestratosNF.cod', con el total de las coordenadas "
          "que "
          "definen la geometría de la superficie del talud, la geometría de los estratos y del "
          "nivel "
          "freático.?")) {
    mostrarTalud();
    return;
  }
  const LecturaLateral r = LeerArchivoTaludEstratosNF(p, RutaArchivoTaludEstratosNF());
  if (r.abierto) p.DatosGuardados = false;
  v.ReconstruirListaEstrato(p.NúmeroEstratos);
  mostrarTalud();
  if (!r.error.empty()) ui.Mensaje(r.error, "Archivo de coordenadas");
}

}  // namespace lomaterra
