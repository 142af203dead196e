#include "salida/graficos.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/resumen.h"
#include "salida/seccion.h"

namespace lomaterra {

namespace {

const double kGrado = std::atan(1.0) / 45.0;

namespace tonos {
constexpr Color NormalTotal{20, 40, 160};
constexpr Color NormalEfectivo{0, 150, 220};
constexpr Color Tangencial{220, 80, 0};
constexpr Color Mayor{170, 0, 60};
constexpr Color Menor{0, 130, 90};
constexpr Color Resistencia{100, 60, 0};
}  // namespace tonos

const char* kEsfuerzo = " (ton/m2)";
const char* kAbscisa = "Abscisa X del centro de la base (m)";

void NotasDelCálculo(Figura& f, const Proyecto& p) {
  f.notas.push_back("Método: " + NombreDelMétodo(p) +
                    "    Factor de seguridad: " + Formato(FactorDeSeguridadFinal(p), "#0.000"));
}

Trazo Serie(const Proyecto& p, const Tabla<double>& columna, const std::string& leyenda,
            Color color, const std::string& marcador) {
  Trazo t = SerieContraAbscisa(p, columna);
  t.leyenda = leyenda;
  t.nombre = leyenda;
  t.color = color;
  t.marcador = marcador;
  t.grosor = 1.8;
  return t;
}

Figura Gráfico(const Proyecto& p, const std::string& nombre, const std::string& título,
               const std::string& ejeY) {
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.nombre = nombre;
  f.título = título;
  f.ejeX = kAbscisa;
  f.ejeY = ejeY;
  NotasDelCálculo(f, p);
  return f;
}

Figura ResistenciaContraNormal(const Proyecto& p) {
  Figura f = Gráfico(
      p, "GráficoResistenciaAlCorteVsEsfuerzoNormal",
      "Resistencia al corte y esfuerzo tangencial movilizado contra esfuerzo normal efectivo",
      std::string("Esfuerzo cortante τ") + kEsfuerzo);
  f.ejeX = std::string("Esfuerzo normal efectivo σ'") + kEsfuerzo;
  const long n = NúmeroDeDovelas(p);
  const auto& d = p.TablaDovelas;
  const double fs = FactorDeSeguridadFinal(p);
  const bool mohrCoulomb =
      p.TipoDeMaterial != "R" || p.ParámetrosIniciales.UsaParámetrosInstantáneos;
  std::vector<std::pair<double, double>> resistencia, movilizado;
  std::map<std::pair<double, double>, double> envolventes;  // (c, φ) -> largest σ' on it
  for (long i = 1; i <= n; ++i) {
    const double sn = d.EsfuerzoNormalEfectivo.Leer(i);
    const double tau = d.EsfuerzoTangencial.Leer(i);
    movilizado.push_back({sn, tau});
    if (mohrCoulomb) {
      const double c = d.CohesiónBase.Leer(i), fi = d.FricciónBase.Leer(i);
      resistencia.push_back({sn, c + std::max(sn, 0.0) * std::tan(fi * kGrado)});
      auto& tope = envolventes[{c, fi}];
      tope = std::max(tope, sn);
    } else {
      // The strength that the factor of safety implies: the mobilised shear is the strength over F.
      resistencia.push_back({sn, fs * tau});
    }
  }
  auto ordenar = [](std::vector<std::pair<double, double>>& v) { std::sort(v.begin(), v.end()); };
  ordenar(resistencia);
  ordenar(movilizado);
  Trazo r;
  r.nombre = "resistencia";
  r.leyenda =
      mohrCoulomb ? "Resistencia al corte c + σ' tan φ" : "Resistencia al corte (F × τ movilizado)";
  r.color = tonos::Resistencia;
  r.marcador = "cuadrado";
  r.sinLínea = true;
  for (const auto& [x, y] : resistencia) r.puntos.push_back({x, y});
  Trazo m;
  m.nombre = "movilizado";
  m.leyenda = "Esfuerzo tangencial movilizado τ";
  m.color = tonos::Tangencial;
  m.marcador = "círculo";
  m.sinLínea = true;
  for (const auto& [x, y] : movilizado) m.puntos.push_back({x, y});
  // The Mohr-Coulomb line of every material met by the bases, from σ' = 0 to the largest σ'.
  int k = 0;
  for (const auto& [cf, tope] : envolventes) {
    if (tope <= 0) continue;
    Trazo e;
    e.nombre = "envolvente " + std::to_string(++k);
    e.leyenda =
        "c = " + Formato(cf.first, "#0.00") + " ton/m2, φ = " + Formato(cf.second, "#0.0") + "°";
    e.color = tonos::Resistencia;
    e.grosor = 1.0;
    e.discontinuo = true;
    e.puntos = {{0.0, cf.first}, {tope, cf.first + tope * std::tan(cf.second * kGrado)}};
    f.trazos.push_back(std::move(e));
  }
  f.trazos.push_back(std::move(r));
  f.trazos.push_back(std::move(m));
  return f;
}

}  // namespace

const std::vector<std::string>& NombresDeGráficos() {
  static const std::vector<std::string> nombres{
      "GráficoEsfuerzoPrincipalMenor",
      "GráficoEsfuerzoPrincipalMayor",
      "GráficoEsfuerzoNormalesTotales",
      "GráficoEsfuerzoNormalesEfectivos",
      "GráficoEsfuerzosTangencialesMovilizados",
      "GráficoResistenciaAlCorteVsEsfuerzoNormal",
      "GráficoEsfuerzosNormalesTotalesEfectivosTangenciales",
      "GráficoDeEsfuerzosPrincipales",
      "GráficoGeometríaAdaptadaEscalaEsfuerzos",
      "GráficoGeometría",
  };
  return nombres;
}

Trazo SerieContraAbscisa(const Proyecto& p, const Tabla<double>& columna) {
  const long n = NúmeroDeDovelas(p);
  std::vector<PuntoFigura> v;
  for (long i = 1; i <= n; ++i) v.push_back({p.TablaDovelas.XMedio.Leer(i), columna.Leer(i)});
  std::stable_sort(v.begin(), v.end(),
                   [](const PuntoFigura& a, const PuntoFigura& b) { return a.x < b.x; });
  Trazo t;
  t.puntos = std::move(v);
  return t;
}

Figura FiguraSecciónConEsfuerzos(const Proyecto& p) {
  Figura f = FiguraSección(p);
  f.nombre = "GráficoGeometríaAdaptadaEscalaEsfuerzos";
  f.título = "Geometría del talud con los esfuerzos en la superficie de falla";
  f.notas.clear();
  NotasDelCálculo(f, p);
  const long n = NúmeroDeDovelas(p);
  const auto& d = p.TablaDovelas;
  if (!HayResultados(p)) return f;
  const BordesDeDovelas b = Bordes(p);
  auto bx = [&](long i) { return b.x[static_cast<std::size_t>(i)]; };
  auto bf = [&](long i) { return b.yFalla[static_cast<std::size_t>(i)]; };
  double mayor = 0;
  for (long i = 1; i <= n; ++i)
    mayor = std::max({mayor, std::abs(d.EsfuerzoNormalEfectivo.Leer(i)),
                      std::abs(d.EsfuerzoTangencial.Leer(i))});
  if (mayor <= 0) return f;
  // The largest stress is drawn a seventh of the size of the section long. Every stress is
  // constant along its base: the diagram is a row of blocks standing on the bases, the effective
  // normal stress outside the sliding mass and the mobilised shear inside it.
  const double escala = 0.15 * TamañoDeSección(p) / mayor;
  std::vector<Trazo> diagramas;
  auto diagrama = [&](const Tabla<double>& columna, double lado, Color color, Color relleno,
                      const std::string& leyenda, const std::string& nombre) {
    Trazo contorno;
    contorno.nombre = nombre;
    contorno.leyenda = leyenda;
    contorno.color = color;
    contorno.grosor = 1.4;
    contorno.cerrado = true;
    contorno.relleno = true;
    contorno.colorRelleno = relleno;
    std::vector<PuntoFigura> puntas;
    for (long i = 1; i <= n + 1; ++i) contorno.puntos.push_back({bx(i), bf(i)});
    for (long i = n; i >= 1; --i) {
      const double a = InclinaciónBase(b, i);
      // Outward normal of the base: away from the sliding mass, into the ground below it.
      const double largo = lado * escala * columna.Leer(i);
      const double nx = std::sin(a) * largo, ny = -std::cos(a) * largo;
      contorno.puntos.push_back({bx(i + 1) + nx, bf(i + 1) + ny});
      contorno.puntos.push_back({bx(i) + nx, bf(i) + ny});
      const double xm = 0.5 * (bx(i) + bx(i + 1)),
                   ym = 0.5 * (bf(i) + bf(i + 1));
      if (n <= 40)
        f.rótulos.push_back({{xm + 1.15 * nx, ym + 1.15 * ny},
                             Formato(columna.Leer(i), "#0.00"),
                             color,
                             7.0,
                             "centro"});
    }
    diagramas.push_back(std::move(contorno));
  };
  diagrama(d.EsfuerzoNormalEfectivo, 1.0, tonos::NormalEfectivo, {205, 232, 250},
           "Esfuerzo normal efectivo σ'", "diagrama σ'");
  diagrama(d.EsfuerzoTangencial, -1.0, tonos::Tangencial, {252, 222, 200},
           "Esfuerzo tangencial movilizado τ", "diagrama τ");
  // Under everything else, so that the slices and the failure surface stay in sight.
  f.trazos.insert(f.trazos.begin(), diagramas.begin(), diagramas.end());
  f.notas.push_back("Escala de esfuerzos: 1 m del dibujo representa " +
                    Formato(1.0 / escala, "#0.00") + " ton/m2; máximo " + Formato(mayor, "#0.00") +
                    " ton/m2");
  return f;
}

Figura FiguraGráfico(const Proyecto& p, const std::string& nombre) {
  const auto& d = p.TablaDovelas;
  const std::string sigma = std::string(kEsfuerzo);
  if (nombre == "GráficoGeometría") return FiguraSección(p);
  if (nombre == "GráficoGeometríaAdaptadaEscalaEsfuerzos") return FiguraSecciónConEsfuerzos(p);
  if (nombre == "GráficoResistenciaAlCorteVsEsfuerzoNormal") return ResistenciaContraNormal(p);
  // The charts of one column of the slices along the abscissa.
  const struct {
    const char* nombre;
    const char* título;
    const char* serie;
    Tabla<double> TablaDeDovelas::*columna;
    Color tono;
  } kUnaColumna[] = {
      {"GráficoEsfuerzoPrincipalMenor", "Esfuerzo principal menor en la base de las dovelas",
       "Esfuerzo principal menor σ3", &TablaDeDovelas::EsfuerzoPrincipalMenor, tonos::Menor},
      {"GráficoEsfuerzoPrincipalMayor", "Esfuerzo principal mayor en la base de las dovelas",
       "Esfuerzo principal mayor σ1", &TablaDeDovelas::EsfuerzoPrincipalMayor, tonos::Mayor},
      {"GráficoEsfuerzoNormalesTotales", "Esfuerzos normales totales en la base de las dovelas",
       "Esfuerzo normal total σ", &TablaDeDovelas::EsfuerzoNormalTotal, tonos::NormalTotal},
      {"GráficoEsfuerzoNormalesEfectivos", "Esfuerzos normales efectivos en la base de las dovelas",
       "Esfuerzo normal efectivo σ'", &TablaDeDovelas::EsfuerzoNormalEfectivo, tonos::NormalEfectivo},
  };
  for (const auto& g : kUnaColumna)
    if (nombre == g.nombre) {
      Figura f = Gráfico(p, nombre, g.título, g.serie + sigma);
      f.trazos.push_back(Serie(p, d.*(g.columna), g.serie, g.tono, "círculo"));
      return f;
    }
  if (nombre == "GráficoEsfuerzosTangencialesMovilizados") {
    Figura f = Gráfico(p, nombre, "Esfuerzos tangenciales movilizados en la base de las dovelas",
                       "Esfuerzo tangencial τ" + sigma);
    f.trazos.push_back(Serie(p, d.EsfuerzoTangencial, "Esfuerzo tangencial movilizado τ",
                             tonos::Tangencial, "círculo"));
    return f;
  }
  if (nombre == "GráficoEsfuerzosNormalesTotalesEfectivosTangenciales") {
    Figura f = Gráfico(
        p, nombre, "Esfuerzos normales totales, efectivos y tangenciales en la base de las dovelas",
        "Esfuerzo" + sigma);
    f.trazos.push_back(
        Serie(p, d.EsfuerzoNormalTotal, "Esfuerzo normal total σ", tonos::NormalTotal, "círculo"));
    f.trazos.push_back(Serie(p, d.EsfuerzoNormalEfectivo, "Esfuerzo normal efectivo σ'",
                             tonos::NormalEfectivo, "cuadrado"));
    f.trazos.push_back(Serie(p, d.EsfuerzoTangencial, "Esfuerzo tangencial movilizado τ",
                             tonos::Tangencial, "triángulo"));
    return f;
  }
  if (nombre == "GráficoDeEsfuerzosPrincipales") {
    Figura f =
        Gráfico(p, nombre, "Esfuerzos principales contra abscisas", "Esfuerzo principal" + sigma);
    f.trazos.push_back(
        Serie(p, d.EsfuerzoPrincipalMayor, "Esfuerzo principal mayor σ1", tonos::Mayor, "círculo"));
    f.trazos.push_back(Serie(p, d.EsfuerzoPrincipalMenor, "Esfuerzo principal menor σ3",
                             tonos::Menor, "cuadrado"));
    return f;
  }
  return Figura{};
}

}  // namespace lomaterra
