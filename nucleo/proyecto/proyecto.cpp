#include "proyecto/proyecto.h"

#include <vector>

namespace lomaterra {

void TablaEstrato::BorrarTodo() {
  Cohesión.Borrar(); Fricción.Borrar(); PesoUnitarioHúmedo.Borrar(); PesoUnitarioSaturado.Borrar();
  BorrarSuelo();
  BorrarRoca();
  VelocidadCorte.Borrar(); VelocidadLongitudinal.Borrar(); Poisson.Borrar(); Viscosidad.Borrar();
  ResistenciaMacizo.Borrar(); ModuloMacizo.Borrar(); ResistenciaCorteMacizo.Borrar(); CoeficienteKo.Borrar();
}

void TablaEstrato::RedimensionarConservando(long n) {
  for (Tabla<double>* t : {&Cohesión, &Fricción, &PesoUnitarioHúmedo, &PesoUnitarioSaturado,
                           &ParámetroPresión, &CoeficienteConsolidaciónVertical, &TiempoDeConstrucción,
                           &m_intacta, &Parámetro_GSI, &m_macizo, &s_macizo, &C_Simple,
                           &VelocidadCorte, &VelocidadLongitudinal, &Poisson, &Viscosidad,
                           &ResistenciaMacizo, &ModuloMacizo, &ResistenciaCorteMacizo, &CoeficienteKo})
    t->RedimensionarConservando(n);
  TipoEstrato.RedimensionarConservando(n);
}

void TablaDeDovelas::BorrarResultados() {
  ÁnguloBase.Borrar(); FuerzaNormal.Borrar();
  EsfuerzoTangencial.Borrar(); EsfuerzoNormalTotal.Borrar(); EsfuerzoNormalEfectivo.Borrar();
  EsfuerzoPrincipalMayor.Borrar(); EsfuerzoPrincipalMenor.Borrar();
}

bool Proyecto::SuperficieCircular() const {
  return NúmeroTramosFalla == 1 && TramoFalla.TipoUnión.Leer(1) == "C";
}

void EstadoVentana::ReconstruirListaEstrato(int n) {
  ListaEstrato.assign(1, "Seleccione el estrato");
  for (int s = 1; s <= n; ++s) ListaEstrato.push_back(std::to_string(s));
  EstratoSeleccionado = 0;
}

const char* EtiquetaPanel(int tipo) {
  switch (tipo) {
    case 2: return "Coordenadas de la superficie de falla";
    case 3: return "Coordenadas del nivel freático";
    case 4: return "Coordenadas del estrato";
    default: return "Coordenadas Talud-Presa-Túnel";
  }
}

void ReiniciarProyecto(Proyecto& p) {
  EstadoVentana& v = p.Ventana;
  // The panel and its working arrays.
  v.ListaCoordenadas.clear();
  v.FilaSeleccionada = 0;
  v.TipoPanel = 1;
  v.EstratoPanel = 1;
  // Coordinate counts and tables.
  p.NúmeroPuntosTalud = p.NúmeroPuntosFalla = p.NúmeroPuntosFreático = 0;
  p.NúmeroEstratos = 0;
  p.CoordenadasTalud.Borrar(); p.CoordenadasFalla.Borrar(); p.CoordenadasFreático.Borrar();
  p.XEstrato.Borrar(); p.YEstrato.Borrar();
  // Columns erased by the reset.
  p.TablaDovelas.AlturaAguaSobreTalud.Borrar();
  p.PuntosEstrato.Borrar();
  p.TablaDovelas.PresiónPoros.Borrar();
  p.TablaDovelas.CohesiónBase.Borrar();
  p.TablaDovelas.FricciónBase.Borrar();
  p.Estrato.BorrarTodo();
  p.CaracterísticasSueloCompletas = p.CaracterísticasRocaCompletas = true;
  p.ParámetrosEstratoCompletos = p.ParámetrosSísmicosCompletos = true;
  v.ReconstruirListaEstrato(0);
  v.EtiquetaCoordenadas = EtiquetaPanel(1);
  v.Título = "[Nuevo proyecto] - Lomaterra";
  v.TextoProyecto.clear(); v.TextoX.clear(); v.TextoY.clear(); v.NombreArchivo.clear();
  p.ListaGuardada = true;
  p.DatosGuardados = true;
  p.Sísmico.RegistroSeleccionado = 0;
  p.EstratosCaracterizados = false;
  p.ParámetrosInicialesDados = false;
  p.ParámetrosIniciales.VaríaRadio = false;
  p.ParámetrosIniciales.LetraVaríaRadio = "N";  // the flag and its letter are one datum
  p.GeometríaFallaDefinida = false;
  p.CargasUniformesDadas = false;
  p.CargasPuntualesDadas = false;
  p.TramoFalla.Redimensionar(0);
  p.NúmeroTramosFalla = 0;
  p.HistoriaIteraciones.Redimensionar(0);
  p.NúmeroIteraciones = 0;
  p.TablaDovelas.BorrarResultados();
  // No slices stand after a reset: the stage flags are cleared below, so the first calculation
  // lays them again, and a project saved before it writes no slice rows.
  p.NúmeroBordes = 0;
  p.SumaTangenciales = p.SumaNormalesTotales = p.SumaNormalesEfectivos = 0;
  p.SumaPrincipalesMayores = p.SumaPrincipalesMenores = 0;
  p.SumaFuerzasHorizontales = p.SumaFuerzasVerticales = p.SumaMomentos = 0;
  p.CálculoHecho = false;
  p.InformaciónDada = false;
  p.InformaciónProyecto = InformaciónDelProyecto{};
  p.GrietaTracción = TablaGrietaTracción{};
  p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos = "N";
  p.ParámetrosIniciales.UsaParámetrosInstantáneos = false;
  p.ParámetrosIniciales.ParámetrosInstantáneosDisponibles = false;
  p.EtapaIntersecciones = p.EtapaQuiebres = p.EtapaDovelas = false;
  p.EtapaGeometría = p.EtapaEstratos = p.EtapaPoros = false;
  p.DesembalseRápido = false;
  // The radius that a search of the project before left in variation is not this project's: the
  // first calculation after New or Open finds the centre of its own arc.
  p.Trabajo.RadioEnVariación = false;
  p.PresionesExistentes = false;
  // Everything of the mesh and of the seismic analysis.
  p.Malla.Limpiar();
  p.Sísmico.Limpiar();
  // Kept on purpose: TipoDeAnálisis, TipoDeMaterial, the rest of ParámetrosIniciales and the
  // loads' tables with their counts; the flags that gate them are cleared above.
}

void GuardarPanelCoordenadas(Proyecto& p, int tipo, int estrato) {
  const auto& lista = p.Ventana.ListaCoordenadas;
  const long n = static_cast<long>(lista.size());
  // Two equal abscissas side by side: the later one is stored 0.01 below the one before it, so a
  // run of equal abscissas becomes a run of very steep segments and never two equal neighbours.
  std::vector<double> guardadas(static_cast<std::size_t>(n));
  for (long i = 1; i <= n; ++i) {
    const double xi = lista[static_cast<std::size_t>(i - 1)].X;
    guardadas[static_cast<std::size_t>(i - 1)] =
        (i > 1 && xi == lista[static_cast<std::size_t>(i - 2)].X) ? guardadas[static_cast<std::size_t>(i - 2)] - 0.01 : xi;
  }
  auto x = [&](long i) { return guardadas[static_cast<std::size_t>(i - 1)]; };
  auto y = [&](long i) { return lista[static_cast<std::size_t>(i - 1)].Y; };
  TablaXY* t = nullptr;
  switch (tipo) {
    case 1: t = &p.CoordenadasTalud; p.NúmeroPuntosTalud = static_cast<Entero>(n); break;
    case 2: t = &p.CoordenadasFalla; p.NúmeroPuntosFalla = static_cast<Entero>(n); break;
    case 3: t = &p.CoordenadasFreático; p.NúmeroPuntosFreático = static_cast<Entero>(n); break;
    case 4: {
      if (estrato < 1 || estrato > p.NúmeroEstratos) return;
      p.PuntosEstrato.RedimensionarConservando(std::max<long>(p.PuntosEstrato.Tamaño(), p.NúmeroEstratos));
      p.PuntosEstrato[estrato] = static_cast<Entero>(n);
      const long columnas = std::max(p.XEstrato.Columnas(), n);
      const long filas = std::max<long>(p.XEstrato.Filas(), p.NúmeroEstratos);
      p.XEstrato.RedimensionarConservando(filas, columnas);
      p.YEstrato.RedimensionarConservando(filas, columnas);
      for (long j = 1; j <= columnas; ++j) {
        p.XEstrato(estrato, j) = j <= n ? x(j) : 0.0;
        p.YEstrato(estrato, j) = j <= n ? y(j) : 0.0;
      }
      return;
    }
    default: return;
  }
  t->Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    t->X[i] = x(i);
    t->Y[i] = y(i);
  }
}

void CargarPanelCoordenadas(Proyecto& p, int tipo, int estrato) {
  EstadoVentana& v = p.Ventana;
  v.ListaCoordenadas.clear();
  v.FilaSeleccionada = 0;
  v.TipoPanel = tipo;
  v.EstratoPanel = estrato;
  v.EtiquetaCoordenadas = EtiquetaPanel(tipo);
  const TablaXY* t = nullptr;
  long n = 0;
  switch (tipo) {
    case 1: t = &p.CoordenadasTalud; n = p.NúmeroPuntosTalud; break;
    case 2: t = &p.CoordenadasFalla; n = p.NúmeroPuntosFalla; break;
    case 3: t = &p.CoordenadasFreático; n = p.NúmeroPuntosFreático; break;
    case 4:
      if (estrato >= 1 && estrato <= p.NúmeroEstratos) {
        n = p.PuntosEstrato.Leer(estrato);
        for (long j = 1; j <= n; ++j)
          v.ListaCoordenadas.push_back({p.XEstrato.Leer(estrato, j), p.YEstrato.Leer(estrato, j)});
      }
      return;
    default: return;
  }
  for (long i = 1; i <= n; ++i) v.ListaCoordenadas.push_back({t->X.Leer(i), t->Y.Leer(i)});
}

}  // namespace lomaterra
