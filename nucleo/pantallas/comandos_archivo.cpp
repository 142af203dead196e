#include "pantallas/comandos_archivo.h"

#include <filesystem>
#include <system_error>

#include "pantallas/malla.h"
#include "proyecto/archivo.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr const char* kNoHaGuardado = "No ha guardado los datos actuales, ¿desea guardarlos?";

void TítuloTrasArchivo(Proyecto& p, const std::string& ruta) {
  p.Ventana.NombreArchivo = ruta;
  p.Ventana.Título = TítuloDeArchivo(ruta) + " - " + kNombrePrograma;
}

// The questions of a finite-element project before a save; false when the user says No.
bool ComprobacionesElementosFinitos(Proyecto& p, Interfaz& ui) {
  const MallaElementos& m = p.Malla;
  const DatosSísmicos& s = p.Sísmico;
  const bool suelo = p.TipoDeMaterial == "S";
  struct Caso {
    bool falta;
    const char* pregunta;
  };
  const Caso casos[] = {
      {!m.NodosDefinidos,
       "No se ha dado las coordenadas de los nodos que definen los elementos finitos (Menú "
       "elementos finitos), "
       "¿Desea guardar y luego dar las coordenadas?"},
      {!m.ElementosDefinidos,
       "No se han definido los elementos finitos a través de los respectivos nodos (Menú elementos "
       "finitos), "
       "¿Desea guardar y luego definir elementos?"},
      {suelo && !m.CaracterísticasElásticasDadas,
       "No se ha dado las características elásticas  de los estratos (Menú elementos finitos, "
       "Parámetros de los "
       "estratos), ¿Desea guardar y luego dar esta información?"},
      {!m.MaterialesAsignados,
       "No se ha asignado a cada elemento el material que los caracteriza. (Menú elementos "
       "finitos, "
       "Caracterización de los elementos), ¿Desea guardar y luego dar esta información?"},
      {!m.NodosRestringidosDefinidos,
       "No se ha definido los nodos con restricción de movimiento. (Menú elementos finitos, Nodos "
       "con "
       "restricción), ¿Desea guardar y luego dar esta información?"},
      {suelo && !s.ParámetrosSísmicosDados,
       "No se ha dado algunos parámetros de los estratos para el análisis sísmico (para análisis "
       "viscoplástico "
       "no es requerido). (Menú elementos finitos, Parámetros de los estratos para el cálculo "
       "sísmico), ¿Desea "
       "guardar y luego dar esta información?"},
      {!s.RegistroDado,
       "No se ha dado los valores de las aceleraciones del registro sísmico (para análisis "
       "viscoplástico no es "
       "requerido). (Menú elementos finitos, Input de registro sísmico), ¿Desea guardar y luego "
       "dar esta "
       "información?"},
      {!s.FormasModalesDadas,
       "No se ha ordenado hacer el cálculo de los vectores de forma modales normalizados, y en "
       "consecuencia las "
       "frecuencias naturales (para análisis viscoplástico no es requerido). (Menú elementos "
       "finitos, "
       "Estimación de las frecuencias naturales y Estimación de los vectores de Forma Modales), "
       "¿Desea guardar "
       "y luego se estiman estos valores.?"},
  };
  for (const Caso& c : casos)
    if (c.falta && !ui.Pregunta(c.pregunta)) return false;
  // A Yes to the seismic calculation covers the viscoplastic one too.
  if ((s.ParámetrosSísmicosDados || s.RegistroDado || s.FormasModalesDadas) && !s.SismoCalculado) {
    return ui.Pregunta("Ud. no ha realizado el cálculo sísmico, ¿Desea guardar y luego calcular?");
  }
  if (!s.CálculoSísmicoHecho && !p.CálculoHecho)
    return ui.Pregunta(
        "Ud. no ha realizado el cálculo viscoplástico, ¿Desea guardar y luego calcular?");
  return true;
}

// Save as without the checks: the dialog, the overwrite question, the write. True when written.
bool GuardarConDiálogo(Proyecto& p, Interfaz& ui) {
  const auto ruta = ui.ElegirArchivoGuardar(kFiltroProyectos, 2);
  if (!ruta || ruta->empty()) return false;
  std::error_code ec;
  if (std::filesystem::exists(*ruta, ec) &&
      !ui.Pregunta("El archivo ya existe. ¿Desea sobreescribirlo?"))
    return false;
  if (p.TipoDeAnálisis == "F" && ui.Pregunta(kPreguntaMaterialesAlGuardar)) {
    PantallaMateriales materiales(p);
    ui.Abrir(materiales);
  }
  if (!GuardarProyecto(p, *ruta, ui)) return false;
  p.DatosGuardados = true;
  p.ListaGuardada = true;
  TítuloTrasArchivo(p, *ruta);
  return true;
}

bool GuardarComo(Proyecto& p, Interfaz& ui) {
  if (!ComprobacionesAntesDeGuardar(p, ui)) return false;
  return GuardarConDiálogo(p, ui);
}

// Save: the checks, then Save as in every case, which runs them again and always asks for the
// file, whether the project has a name or not.
bool Guardar(Proyecto& p, Interfaz& ui) {
  if (!ComprobacionesAntesDeGuardar(p, ui)) return false;
  return GuardarComo(p, ui);
}

}  // namespace

bool ComprobacionesAntesDeGuardar(Proyecto& p, Interfaz& ui) {
  if (!p.InformaciónDada) {
    ui.Mensaje(
        "Si desea guardar información, comience por dar La información del proyecto en el menú "
        "archivo.",
        "Información del proyecto");
    return false;
  }
  if (p.NúmeroPuntosTalud == 0) {
    ui.Mensaje(
        "Si desea guardar información, debe dar primero las coordenas del talud o las coordenadas "
        "de la "
        "superficie de la Presa ó coordenadas del borde de la carga de roca en el túnel. Vaya al "
        "menú "
        "coordenadas.",
        "Coordenadas Talud-Presa-Túnel");
    return false;
  }
  if (p.NúmeroEstratos == 0) {
    ui.Mensaje(
        "Si desea guardar información, debe insertar primero el número de estratos que definen la "
        "litología del problema y luego  dar sus coordenadas. Vaya al menú coordenadas.",
        "Estratos e Insertar estrato");
    return false;
  }
  if (!p.EstratosCaracterizados) {
    ui.Mensaje(
        "Ud. no ha dado las características geomecánicas de los estratos. Vaya al menú Parámetros "
        "y Cargas",
        "Caracteríticas Geomecánicas de los estratos");
    return false;
  }
  if (p.TipoDeAnálisis == "T") {
    DatosSísmicos& s = p.Sísmico;
    if (s.RegistroDado || s.ParámetrosSísmicosDados || s.FormasModalesDadas || s.FrecuenciasDadas) {
      if (!ui.Pregunta("Existe  datos o registros para análisis sísmicos. Por tanto para el "
                       "análisis por los "
                       "métodos de equilibrio límite, se recomienda que Guarde la información en "
                       "otro archivo "
                       "con otro nombre para no perder esa información si así lo considera. ¿Desea "
                       "continuar?."))
        return false;
      // The seismic data are really lost: flags, steps, tables and scalars.
      s.Limpiar();
    }
    if (!p.CálculoHecho &&
        !ui.Pregunta("Ud. no ha realizado el cálculo, ¿Desea guardar y luego calcular?"))
      return false;
  } else if (p.TipoDeAnálisis == "F") {
    return ComprobacionesElementosFinitos(p, ui);
  }
  return true;
}

void ArchivoNuevo(Proyecto& p, Interfaz& ui) {
  if (!p.DatosGuardados && ui.Pregunta(kNoHaGuardado)) Guardar(p, ui);
  ReiniciarProyecto(p);
}

void AbrirArchivoDeProyecto(Proyecto& p, Interfaz& ui, const std::string& ruta) {
  // A file that cannot be read as a whole changes nothing: the project open stays open, with
  // its name and title.
  if (!LeerProyecto(p, ruta, ui)) return;
  TítuloTrasArchivo(p, ruta);
  p.DatosGuardados = false;
  CargarPanelCoordenadas(p, 1, 1);
}

void MenúArchivoAbrir(Proyecto& p, Interfaz& ui) {
  if (!p.DatosGuardados && !p.ListaGuardada &&
      !ui.Pregunta("No ha guardado los datos actuales, ¿desea continuar y abrir otro archivo?"))
    return;
  const auto ruta = ui.ElegirArchivoAbrir(kFiltroProyectos, 2);
  if (!ruta || ruta->empty()) return;
  AbrirArchivoDeProyecto(p, ui, *ruta);
}

void MenúArchivoGuardar(Proyecto& p, Interfaz& ui) {
  Guardar(p, ui);
}

void MenúArchivoGuardarComo(Proyecto& p, Interfaz& ui) {
  GuardarComo(p, ui);
}

void MenúArchivoSalir(Proyecto& p, Interfaz& ui) {
  if (!p.DatosGuardados && ui.Pregunta(kNoHaGuardado)) Guardar(p, ui);
  p.Ventana.SalirDelPrograma = true;
}

void MenúAyudaContenido(Proyecto&, Interfaz& ui) {
  ui.Ayuda("AYUDALOMATERRA.HLP");
}

void MenúAyudaAcercaDe(Proyecto&, Interfaz& ui) {
  ui.AcercaDe(
      std::string("Acerca de ") + kNombrePrograma,
      std::string(kNombrePrograma) + " " + kVersiónPrograma +
          "\n\nEstabilidad de taludes, presas y cargas de roca sobre túneles en dos dimensiones.\n"
          "Equilibrio límite: Leshchinsky y Huang, Bishop, Fellenius y Janbu, en suelos y en "
          "macizos "
          "rocosos.\nElementos finitos: comportamiento elástico-viscoplástico, plasticidad "
          "perfecta y "
          "análisis sísmico.\n\nUnidades: metros, toneladas y segundos.");
}

}  // namespace lomaterra
