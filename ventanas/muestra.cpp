#include "muestra.h"

#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <utility>

namespace lomaterra {

namespace {

using Puntos = std::initializer_list<std::pair<double, double>>;

Entero Llenar(TablaXY& t, Puntos puntos) {
  t.Redimensionar(static_cast<long>(puntos.size()));
  long i = 0;
  for (const auto& [x, y] : puntos) {
    ++i;
    t.X[i] = x;
    t.Y[i] = y;
  }
  return static_cast<Entero>(i);
}

}  // namespace

void ProyectoDeMuestra(Proyecto& p) {
  ReiniciarProyecto(p);
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.InformaciónDada = true;
  p.InformaciónProyecto = {"0+120.00", "0+180.00", "15 / 03/ 2024", "Ing. María Pérez",
                           "Geotecnia Andina"};

  // X descends from the crest: the crest at X 60 to 40, the toe at X 20, the plain to X 0.
  p.NúmeroPuntosTalud = Llenar(p.CoordenadasTalud, {{60, 20}, {40, 20}, {20, 10}, {0, 10}});
  p.NúmeroPuntosFreático = Llenar(p.CoordenadasFreático, {{60, 15}, {40, 14}, {20, 8}, {0, 8}});

  // Lower lines of the two strata.
  p.NúmeroEstratos = 2;
  p.PuntosEstrato.Redimensionar(2);
  p.PuntosEstrato[1] = p.PuntosEstrato[2] = 2;
  p.XEstrato.Redimensionar(2, 2);
  p.YEstrato.Redimensionar(2, 2);
  p.XEstrato(1, 1) = 60;
  p.YEstrato(1, 1) = 12;
  p.XEstrato(1, 2) = 0;
  p.YEstrato(1, 2) = 6;
  p.XEstrato(2, 1) = 60;
  p.YEstrato(2, 1) = 0;
  p.XEstrato(2, 2) = 0;
  p.YEstrato(2, 2) = 0;

  TablaEstrato& e = p.Estrato;
  e.RedimensionarConservando(2);
  const double c[] = {0, 2.0, 5.0}, fi[] = {0, 25, 30}, gh[] = {0, 1.8, 1.9}, gs[] = {0, 2.0, 2.1};
  for (long s = 1; s <= 2; ++s) {
    e.Cohesión[s] = c[s];
    e.Fricción[s] = fi[s];
    e.PesoUnitarioHúmedo[s] = gh[s];
    e.PesoUnitarioSaturado[s] = gs[s];
    e.TipoEstrato[s] = 0;
  }
  p.EstratosCaracterizados = true;
  p.NúmeroEstratosCaracterizados = 2;

  // One circular arc from the crest to the toe.
  p.NúmeroPuntosFalla = Llenar(p.CoordenadasFalla, {{46, 20}, {17, 10}});
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1;
  p.TramoFalla.PuntoFinal[1] = 2;
  p.TramoFalla.TipoUnión[1] = "C";
  p.NúmeroTramosFalla = 1;
  p.GeometríaFallaDefinida = true;

  // A strip load on the crest.
  p.CargaUniforme.Redimensionar(1);
  p.CargaUniforme.xo[1] = 48;
  p.CargaUniforme.yo[1] = 20;
  p.CargaUniforme.xf[1] = 56;
  p.CargaUniforme.yf[1] = 20;
  p.CargaUniforme.qx[1] = 0;
  p.CargaUniforme.qy[1] = 2;
  p.NúmeroCargasUniformes = 1;
  p.CargasUniformesDadas = true;

  TablaParámetrosIniciales& q = p.ParámetrosIniciales;
  q.MétodoDeCálculo = 3;
  q.FSInicial = 1.5;
  q.Radio = 30;
  q.NúmeroDovelas = 12;
  q.LetraVaríaRadio = "N";
  // Centre of the arc through the two points, on the crest side above the upper end.
  const double x1 = 46, y1 = 20, x2 = 17, y2 = 10;
  q.Cuerda = std::hypot(x1 - x2, y1 - y2);
  const double pi = 4 * std::atan(1.0);
  const double b = q.Cuerda / (2 * q.Radio);
  const double v = pi / 2 - std::atan((y1 - y2) / (x1 - x2)) - std::atan(b / std::sqrt(1 - b * b));
  q.CentroX = q.Radio * std::sin(v) + x2;
  q.CentroY = q.Radio * std::cos(v) + y2;
  p.ParámetrosInicialesDados = true;

  EstadoVentana& w = p.Ventana;
  w.TextoProyecto =
      "Corte de la vía en el tramo 0+120 a 0+180: talud de 10 m en dos estratos de suelo, "
      "nivel freático y carga de 2 ton/m2 en la cresta.";
  // The sample's file lives in the temporary folder: a save of the sample never lands in the
  // folder the program was started from.
  w.NombreArchivo = (std::filesystem::temp_directory_path() / "talud_de_muestra.cod").string();
  w.Título = "talud_de_muestra.cod - Lomaterra";
  w.ReconstruirListaEstrato(2);
  w.EntradaCoordenadasAbierta = true;
  CargarPanelCoordenadas(p, 1, 1);
  w.EtiquetaCoordenadas = EtiquetaPanel(1);
  p.DatosGuardados = true;
}

}  // namespace lomaterra
