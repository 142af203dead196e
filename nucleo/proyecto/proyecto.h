// The whole state of one open project. One instance lives for the life of the program; every
// command and screen takes it by reference and reads and writes its tables directly.
#pragma once

#include <cstdint>
#include <string>

#include "proyecto/datos_sismicos.h"
#include "proyecto/ventana_principal.h"
#include "proyecto/tabla.h"

namespace lomaterra {

using Entero = std::int16_t;

struct InformaciónDelProyecto {
  std::string ProgresivaInicial, ProgresivaFinal, FechaProyecto, IngResponsable, Empresa;
};

// Joins between consecutive points of the failure surface.
struct TablaTramoFalla {
  Tabla<double> PuntoInicial, PuntoFinal;  // point numbers held in doubles
  Tabla<std::string> TipoUnión;            // "L", "C" or "P"
  void Redimensionar(long n) { PuntoInicial.Redimensionar(n); PuntoFinal.Redimensionar(n); TipoUnión.Redimensionar(n); }
  void RedimensionarConservando(long n) {
    PuntoInicial.RedimensionarConservando(n); PuntoFinal.RedimensionarConservando(n); TipoUnión.RedimensionarConservando(n);
  }
};

// One row a stratum, parallel columns; soil and rock columns side by side.
struct TablaEstrato {
  Tabla<double> Cohesión, Fricción, PesoUnitarioHúmedo, PesoUnitarioSaturado;
  // Soil
  Tabla<Entero> TipoEstrato;  // 1 fill ("A"), 0 natural ("B")
  Tabla<double> ParámetroPresión, CoeficienteConsolidaciónVertical, TiempoDeConstrucción;
  // Rock
  Tabla<double> m_intacta, Parámetro_GSI, m_macizo, s_macizo, C_Simple;
  Tabla<double> VelocidadCorte, VelocidadLongitudinal, Poisson, Viscosidad;
  Tabla<double> ResistenciaMacizo, ModuloMacizo, ResistenciaCorteMacizo, CoeficienteKo;
  void BorrarSuelo() { TipoEstrato.Borrar(); ParámetroPresión.Borrar(); CoeficienteConsolidaciónVertical.Borrar(); TiempoDeConstrucción.Borrar(); }
  void BorrarRoca() { m_intacta.Borrar(); Parámetro_GSI.Borrar(); m_macizo.Borrar(); s_macizo.Borrar(); C_Simple.Borrar(); }
  void BorrarTodo();
  // Dimensions every column to n rows keeping what there is.
  void RedimensionarConservando(long n);
};

struct TablaCargaUniforme {
  Tabla<double> xo, yo, xf, yf, qx, qy;
  void Redimensionar(long n) { xo.Redimensionar(n); yo.Redimensionar(n); xf.Redimensionar(n); yf.Redimensionar(n); qx.Redimensionar(n); qy.Redimensionar(n); }
};

struct TablaCargaPuntual {
  Tabla<double> Xpuntual, Ypuntual, Px, Py;
  void Redimensionar(long n) { Xpuntual.Redimensionar(n); Ypuntual.Redimensionar(n); Px.Redimensionar(n); Py.Redimensionar(n); }
};

struct TablaParámetrosIniciales {
  Entero MétodoDeCálculo = 0;          // 1 Leshchinsky-Huang, 2 Bishop, 3 Fellenius, 4 Janbu
  Entero ParámetrosInstantáneos = 0;   // 0 none, 1 point by point, 2 between points, 3 graphic
  bool UsaParámetrosInstantáneos = false;
  std::string LetraUsaParámetrosInstantáneos = "N";
  bool ParámetrosInstantáneosDisponibles = false;
  double Multiplicador1 = 0, Multiplicador2 = 0, FSInicial = 0, EsfuerzoInicialCresta = 0;
  double Radio = 0, Cuerda = 0;
  bool VaríaRadio = false;
  std::string LetraVaríaRadio;
  double CentroX = 0, CentroY = 0, ReferenciaMomentoX = 0, ReferenciaMomentoY = 0;
  double NúmeroDovelas = 0;
  double CoeficienteSísmicoHorizontal = 0, CoeficienteSísmicoVertical = 0;
};

struct TablaGrietaTracción {
  double AbscisaPrimerPunto = 0, OrdenadaPrimerPunto = 0, AbscisaSegundoPunto = 0,
         OrdenadaSegundoPunto = 0, AbscisaNF = 0, OrdenadaNF = 0, EmpujeGrieta = 0;
};

// The slices. Per edge: the Borde... columns (1..NúmeroBordes); per slice the rest
// (1..NúmeroBordes - 1).
struct TablaDeDovelas {
  Tabla<double> BordeX, BordeYFalla, BordeYTalud, BordeYFreático;
  Tabla<double> XMedio, YBase, YTalud, YFreático, Ancho, PendienteTalud, PendienteBase;
  Tabla2<double> YEstrato;  // (stratum s, slice i)
  Tabla<double> CohesiónBase, FricciónBase, TanFricciónBase;
  Tabla<Entero> TipoEstratoBase;
  Tabla<double> m_Base, s_Base, a_Base, C_SimpleBase;
  Tabla<double> PesoUnitarioMedio, PresiónPoros, PresiónPorosMedia, AlturaAguaSobreTalud;
  Tabla<double> ÁnguloBase, FuerzaNormal;
  Tabla<double> EsfuerzoTangencial, EsfuerzoNormalTotal, EsfuerzoNormalEfectivo;
  Tabla<double> EsfuerzoPrincipalMayor, EsfuerzoPrincipalMenor;
  Tabla<double> AlturaEmpuje;  // per edge, Janbu
  // Erases the columns that hold the results of a method.
  void BorrarResultados();
};

struct TablaHistoria {
  Tabla<double> Multiplicador1, Multiplicador2, FactorDeSeguridad;
  void Redimensionar(long n) { Multiplicador1.Redimensionar(n); Multiplicador2.Redimensionar(n); FactorDeSeguridad.Redimensionar(n); }
  void RedimensionarConservando(long n) {
    Multiplicador1.RedimensionarConservando(n); Multiplicador2.RedimensionarConservando(n); FactorDeSeguridad.RedimensionarConservando(n);
  }
};

// Working state of the slice pipeline, kept between stages for the project's life.
struct TrabajoDovelas {
  TablaXY PuntosFalla;
  Tabla<std::string> TipoEnPunto;
  Entero NúmeroPuntosTrabajo = 0;
  Tabla<double> XIntersección;  // "Intersecciones": X of each crossing
  Tabla<Entero> EstratoCruce;
  Tabla<double> PendienteFallaCruce, PendienteEstratoCruce;
  Entero NúmeroIntersecciones = 0;
  Tabla<double> Quiebres;
  Entero NúmeroQuiebres = 0;
  double XMáximaFalla = 0, XMínimaFalla = 0, YPrimerPuntoFalla = 0, YÚltimoPuntoFalla = 0;
  double RadioActual = 0;
  bool RadioEnVariación = false;
};

// Rock-only values shared by the project.
struct DatosRoca {
  std::string TipoDeObra = "S";  // "O" tunnels, "S" slopes
  double FactorPerturbación = 0, AlturaH = 0;
  bool EnsayosDados = false;
  Tabla<Entero> PuntosEnsayo;
  Tabla2<double> EnsayoSigma1, EnsayoSigma3;  // (stratum, pair)
  Entero EstadoPlano = 2;
  double EspesorConsiderado = 1;
  Entero MétodoModuloCortante = 0;
  double PeríodoFundamental = 0;
  double EspesorSedimentos = 0;  // estimated by the geologist, for the seismic analysis
};

// Anchors designed on the result screens.
struct DatosAnclajes {
  double FSConAnclaje = 0, InclinaciónAnclajes = 0, DiámetroAnclajes = 0, EsfuerzoRoturaAnclaje = 0,
         NúmeroGuayas = 0, SeparaciónAnclajesActivo = 0, SeparaciónAnclajesPasivo = 0;
};

// The finite-element mesh: its tables keep their own names apart from the slope loads.
// Only the flags that the limit-equilibrium side reads live here until the mesh is built.
struct MallaElementos {
  bool NodosDefinidos = false, ElementosDefinidos = false, CaracterísticasElásticasDadas = false,
       MaterialesAsignados = false, NodosRestringidosDefinidos = false, CargasUniformesDefinidas = false;
  Entero NúmeroDeNodos = 0, NúmeroDeElementos = 0;
  double FSFinalElementos = 0;
  void Limpiar() { *this = MallaElementos{}; }
};

struct Proyecto {
  // Selectors
  std::string TipoDeAnálisis;  // "T", "F" or empty
  std::string TipoDeMaterial;  // "S", "R" or empty

  InformaciónDelProyecto InformaciónProyecto;

  // Coordinates (X descends, row 1 on the crest side)
  TablaXY CoordenadasTalud, CoordenadasFalla, CoordenadasFreático;
  Entero NúmeroPuntosTalud = 0, NúmeroPuntosFalla = 0, NúmeroPuntosFreático = 0;
  Tabla2<double> XEstrato, YEstrato;  // lower line of stratum s: (s, j)
  Tabla<Entero> PuntosEstrato;
  Entero NúmeroEstratos = 0;

  TablaTramoFalla TramoFalla;
  Entero NúmeroTramosFalla = 0;
  bool GeometríaFallaDefinida = false;

  TablaEstrato Estrato;
  bool EstratosCaracterizados = false;
  Entero NúmeroEstratosCaracterizados = 0;

  TablaCargaUniforme CargaUniforme;
  Entero NúmeroCargasUniformes = 0;
  bool CargasUniformesDadas = false;
  TablaCargaPuntual CargaPuntual;
  Entero NúmeroCargasPuntuales = 0;
  bool CargasPuntualesDadas = false;

  TablaParámetrosIniciales ParámetrosIniciales;
  bool ParámetrosInicialesDados = false;
  TablaGrietaTracción GrietaTracción;

  TablaDeDovelas TablaDovelas;
  Entero NúmeroBordes = 0;
  TrabajoDovelas Trabajo;

  TablaHistoria HistoriaIteraciones;
  Entero NúmeroIteraciones = 0;
  double SumaTangenciales = 0, SumaNormalesTotales = 0, SumaNormalesEfectivos = 0,
         SumaPrincipalesMayores = 0, SumaPrincipalesMenores = 0;
  double SumaFuerzasHorizontales = 0, SumaFuerzasVerticales = 0, SumaMomentos = 0;

  // Variational iteration and the screens that step into it
  Tabla2<double> EsfuerzoIteración;  // (j stress point, k step)
  Tabla<double> LímiteEsfuerzo;
  Entero DovelaFallida = 0;
  bool SigmaCorregidaDisponible = false;
  bool SoluciónAceptada = false, SalirDelCálculo = false;

  // Janbu
  bool JanbuCalculado = false, AceptaSolución = false, SaleDelCálculo = false;
  Tabla<double> InclinaciónEmpuje;

  // Instantaneous parameters
  Tabla<double> ResistenciaMovilizadaPrevia, EsfuerzoEfectivoPrevio;
  bool ReutilizarParámetrosInstantáneos = false, ParámetrosInstantáneosCalculados = false;

  DatosRoca Roca;
  DatosAnclajes Anclajes;
  MallaElementos Malla;
  DatosSísmicos Sísmico;

  // Main flags
  bool DatosGuardados = true, ListaGuardada = true, InformaciónDada = false, CálculoHecho = false,
       PresionesExistentes = false, DesembalseRápido = false;
  bool EtapaIntersecciones = false, EtapaQuiebres = false, EtapaDovelas = false,
       EtapaGeometría = false, EtapaEstratos = false, EtapaPoros = false;
  bool CaracterísticasSueloCompletas = true, CaracterísticasRocaCompletas = true,
       ParámetrosEstratoCompletos = true, ParámetrosSísmicosCompletos = true;

  // The main window's own state that the reset and the project file touch.
  EstadoVentana Ventana;

  bool TodasLasEtapas() const {
    return EtapaIntersecciones && EtapaQuiebres && EtapaDovelas && EtapaGeometría && EtapaEstratos && EtapaPoros;
  }
  // The circular surface: one stretch, and it is an arc.
  bool SuperficieCircular() const;
  // Loads in force. The counts outlive a New project, their flags do not: a load acts only while
  // its flag says the loads have been given.
  long CargasUniformesVigentes() const { return CargasUniformesDadas ? NúmeroCargasUniformes : 0; }
  long CargasPuntualesVigentes() const { return CargasPuntualesDadas ? NúmeroCargasPuntuales : 0; }
};

// Resets the project as New and the start of a file read do.
void ReiniciarProyecto(Proyecto& p);

// Moves the coordinate panel into a table (tipo 1 surface, 2 failure surface, 3 phreatic line,
// 4 stratum) and out of it.
void GuardarPanelCoordenadas(Proyecto& p, int tipo, int estrato);
void CargarPanelCoordenadas(Proyecto& p, int tipo, int estrato);

}  // namespace lomaterra
