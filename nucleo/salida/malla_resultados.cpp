#include "salida/malla_resultados.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

const Color kNegro{0, 0, 0}, kGris{150, 150, 150}, kAzul{20, 60, 200}, kRojo{200, 30, 30};

struct Campo {
  const char* nombre;
  const char* título;
  int columna;  // 1 sigma x, 2 sigma y, 3 tau xy, 4 sigma 1, 5 sigma 3, 6 yield function
};
const Campo kCampos[] = {
    {"EsfuerzosSigmaXVsElementos", "Esfuerzos sigma x en los elementos (ton/m²)", 1},
    {"EsfuerzosSigmaYVsElementos", "Esfuerzos sigma y en los elementos (ton/m²)", 2},
    {"EsfuerzosTauXYVsElementos", "Esfuerzos tau xy en los elementos (ton/m²)", 3},
    {"EsfuerzosSigma1VsElementos", "Esfuerzo principal mayor sigma 1 en los elementos (ton/m²)", 4},
    {"EsfuerzosSigma3VsElementos", "Esfuerzo principal menor sigma 3 en los elementos (ton/m²)", 5},
    {"FunciónFluenciaVsElementos", "Función de fluencia en los elementos (ton/m²)", 6},
};
struct Curva {
  const char* nombre;
  const char* título;
  const char* eje;
  int columna;  // as above; 7 horizontal and 8 vertical displacement
};
const Curva kCurvas[] = {
    {"EsfuerzosSigmaXVsAbscisas", "Esfuerzos sigma x versus abscisas", "Sigma x (ton/m²)", 1},
    {"EsfuerzosSigmaYVsAbscisas", "Esfuerzos sigma y versus abscisas", "Sigma y (ton/m²)", 2},
    {"EsfuerzosTauXYVsAbscisas", "Esfuerzos cortantes tau xy versus abscisas", "Tau xy (ton/m²)", 3},
    {"EsfuerzosSigma1VsAbscisas", "Esfuerzo principal mayor versus abscisas", "Sigma 1 (ton/m²)", 4},
    {"EsfuerzosSigma3VsAbscisas", "Esfuerzo principal menor versus abscisas", "Sigma 3 (ton/m²)", 5},
    {"DesplazamientoHorizontalVsAbscisas", "Desplazamiento horizontal versus abscisas", "Desplazamiento x (cm)", 7},
    {"DesplazamientoVerticalVsAbscisas", "Desplazamiento vertical versus abscisas", "Desplazamiento y (cm)", 8},
};

long Paso(const Proyecto& p, long paso) {
  const long n = p.Malla.NúmeroDeIteración;
  return paso >= 1 && paso <= n ? paso : std::max<long>(n, 1);
}

double ValorElemento(const Proyecto& p, long e, long i, int columna) {
  const MallaElementos& m = p.Malla;
  switch (columna) {
    case 1: return m.EsfuerzoX.Leer(e, i);
    case 2: return m.EsfuerzoY.Leer(e, i);
    case 3: return m.EsfuerzoXY.Leer(e, i);
    case 4: return m.EsfuerzoPrincipalMayor.Leer(e, i);
    case 5: return m.EsfuerzoPrincipalMenor.Leer(e, i);
    default: {
      const int puntos = m.Elemento.NodosPorElemento.Leer(e) == 6 ? 3 : 1;
      double F = m.FunciónFluencia.Leer((e - 1) * 3 + 1, i);
      for (int g = 2; g <= puntos; ++g) F = std::max(F, m.FunciónFluencia.Leer((e - 1) * 3 + g, i));
      return F;
    }
  }
}

// Corners of element e (its first three listed nodes) from the given node positions.
std::vector<PuntoFigura> Esquinas(const Proyecto& p, long e, const std::vector<PuntoFigura>* nodos) {
  const MallaElementos& m = p.Malla;
  std::vector<PuntoFigura> v;
  const int n = m.Elemento.NodosPorElemento.Leer(e);
  // Corners and, on curved sides, the mid-side node between them.
  const int orden[6] = {1, 4, 2, 5, 3, 6};
  for (int k : orden) {
    if (k > n) continue;
    if (k > 3) {
      const double lado = k == 4 ? m.Elemento.Lado12.Leer(e) : k == 5 ? m.Elemento.Lado23.Leer(e) : m.Elemento.Lado31.Leer(e);
      if (lado != 1) continue;
    }
    const long nodo = std::lround(m.Elemento.NúmeroElemento.Leer(e, k));
    if (nodos && nodo >= 1 && nodo < static_cast<long>(nodos->size()))
      v.push_back((*nodos)[static_cast<std::size_t>(nodo)]);
    else
      v.push_back({m.Elemento.XElemento.Leer(e, k), m.Elemento.YElemento.Leer(e, k)});
  }
  return v;
}

Trazo Contorno(const Proyecto& p, long e, const std::vector<PuntoFigura>* nodos, Color color, double grosor) {
  Trazo t;
  t.puntos = Esquinas(p, e, nodos);
  t.cerrado = true;
  t.color = color;
  t.grosor = grosor;
  t.nombre = "elemento " + std::to_string(e);
  return t;
}

struct Extensión {
  double x0 = 1e300, x1 = -1e300, y0 = 1e300, y1 = -1e300;
  double Ancho() const { return x1 - x0; }
  double Alto() const { return y1 - y0; }
};
Extensión ExtensiónDeLaMalla(const Proyecto& p) {
  Extensión x;
  const MallaElementos& m = p.Malla;
  for (long f = 1; f <= m.NúmeroDeNodos; ++f) {
    x.x0 = std::min(x.x0, m.Nodo.XNodo.Leer(f));
    x.x1 = std::max(x.x1, m.Nodo.XNodo.Leer(f));
    x.y0 = std::min(x.y0, m.Nodo.YNodo.Leer(f));
    x.y1 = std::max(x.y1, m.Nodo.YNodo.Leer(f));
  }
  if (m.NúmeroDeNodos == 0) x = {0, 1, 0, 1};
  return x;
}

void MallaBase(const Proyecto& p, Figura& f, Color color) {
  for (long e = 1; e <= p.Malla.NúmeroDeElementos; ++e) f.trazos.push_back(Contorno(p, e, nullptr, color, 0.8));
}

// The legend of the colour scale: one filled box a step to the right of the mesh, each with the
// value of its lower edge, and the top value.
void Leyenda(Figura& f, const Extensión& x, double mínimo, double máximo, const std::string& unidad) {
  const double alto = std::max(x.Alto(), x.Ancho() * 0.3);
  const double h = alto / kTramosEscala, ancho = std::max(x.Ancho(), x.Alto()) * 0.04;
  const double x0 = x.x1 + ancho;
  for (int k = 0; k < kTramosEscala; ++k) {
    Trazo t;
    const double y0 = x.y0 + k * h;
    t.puntos = {{x0, y0}, {x0 + ancho, y0}, {x0 + ancho, y0 + h}, {x0, y0 + h}};
    t.cerrado = t.relleno = true;
    t.color = kNegro;
    t.grosor = 0.5;
    t.colorRelleno = ColorDeTramo(k);
    t.nombre = "escala " + std::to_string(k + 1);
    f.trazos.push_back(t);
    const double v = mínimo + (máximo - mínimo) * k / kTramosEscala;
    f.rótulos.push_back({{x0 + ancho * 1.2, y0}, Formato(v, "#0.00"), kNegro, 8, "izquierda"});
  }
  f.rótulos.push_back({{x0 + ancho * 1.2, x.y0 + alto}, Formato(máximo, "#0.00"), kNegro, 8, "izquierda"});
  f.rótulos.push_back({{x0, x.y0 + alto + h * 0.6}, unidad, kNegro, 8, "izquierda"});
}

Figura Numerada(const Proyecto& p, const std::string& nombre) {
  Figura f;
  f.nombre = nombre;
  f.ejeX = "Abscisa (m)";
  f.ejeY = "Ordenada (m)";
  MallaBase(p, f, kGris);
  const MallaElementos& m = p.Malla;
  if (nombre == "ElementoConSuNúmeroCorrespondiente") {
    f.título = "Elementos con su número";
    for (long e = 1; e <= m.NúmeroDeElementos; ++e)
      f.rótulos.push_back({{m.Elemento.XCentroElemento.Leer(e), m.Elemento.YCentroElemento.Leer(e)}, std::to_string(e), kAzul, 7, "centro"});
    for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
      f.marcas.push_back({{m.Nodo.XNodo.Leer(r), m.Nodo.YNodo.Leer(r)}, kNegro, "círculo", 3, "nodo"});
      f.rótulos.push_back({{m.Nodo.XNodo.Leer(r), m.Nodo.YNodo.Leer(r)}, std::to_string(m.Nodo.NúmeroDeNodo.Leer(r)), kRojo, 6, "izquierda"});
    }
  } else {
    f.título = "Elementos con el número del material";
    for (long e = 1; e <= m.NúmeroDeElementos; ++e)
      f.rótulos.push_back({{m.Elemento.XCentroElemento.Leer(e), m.Elemento.YCentroElemento.Leer(e)},
                           NúmeroATexto(m.Elemento.MaterialDeElemento.Leer(e)), kAzul, 7, "centro"});
  }
  return f;
}

}  // namespace

const std::vector<std::string>& NombresDeFigurasDeMalla() {
  static const std::vector<std::string> nombres = [] {
    std::vector<std::string> v{"ElementoConSuNúmeroCorrespondiente", "ElementoDesplazamientoDeLosNodos",
                               "ElementoConElNúmeroDelMaterial"};
    for (const Campo& c : kCampos) v.push_back(c.nombre);
    for (const Curva& c : kCurvas) v.push_back(c.nombre);
    v.push_back("MallaDeformada");
    v.push_back("ElementosFluyendo");
    v.push_back("DovelasSobreEsfuerzos");
    return v;
  }();
  return nombres;
}

bool EsFiguraDeMalla(const std::string& nombre) {
  const auto& v = NombresDeFigurasDeMalla();
  return std::find(v.begin(), v.end(), nombre) != v.end();
}

bool FiguraDeMallaNecesitaResultados(const std::string& nombre) {
  return nombre != "ElementoConSuNúmeroCorrespondiente" && nombre != "ElementoConElNúmeroDelMaterial";
}

int TramoDeEscala(double v, double mínimo, double máximo) {
  if (!(máximo > mínimo)) return kTramosEscala / 2;
  const int k = static_cast<int>(std::floor((v - mínimo) / (máximo - mínimo) * kTramosEscala));
  return std::clamp(k, 0, kTramosEscala - 1);
}

Color ColorDeTramo(int tramo) {
  // Blue, cyan, green, yellow, red along the steps.
  const double t = (tramo + 0.5) / kTramosEscala;
  const double r = std::clamp(1.5 - std::abs(4 * t - 3), 0.0, 1.0);
  const double g = std::clamp(1.5 - std::abs(4 * t - 2), 0.0, 1.0);
  const double b = std::clamp(1.5 - std::abs(4 * t - 1), 0.0, 1.0);
  return {static_cast<std::uint8_t>(std::lround(r * 255)), static_cast<std::uint8_t>(std::lround(g * 255)),
          static_cast<std::uint8_t>(std::lround(b * 255))};
}

double AumentoAutomático(const Proyecto& p, long paso) {
  const MallaElementos& m = p.Malla;
  const long i = Paso(p, paso);
  double máximo = 0;
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) máximo = std::max(máximo, std::abs(m.Desplazamientos.Leer(d, i)));
  const Extensión x = ExtensiónDeLaMalla(p);
  if (máximo == 0) return 1;
  return std::max(x.Ancho(), x.Alto()) / 20 / (máximo / 100);
}

std::vector<PuntoFigura> NodosDeformados(const Proyecto& p, long paso, double aumento) {
  const MallaElementos& m = p.Malla;
  const long i = Paso(p, paso);
  std::vector<PuntoFigura> v(static_cast<std::size_t>(m.NúmeroDeNodos + 1));
  for (long f = 1; f <= m.NúmeroDeNodos; ++f) {
    const long n = m.Nodo.NúmeroDeNodo.Leer(f);
    if (n < 1 || n > m.NúmeroDeNodos) continue;
    v[static_cast<std::size_t>(n)] = {m.Nodo.XNodo.Leer(f) + aumento * m.Desplazamientos.Leer(2 * n - 1, i) / 100,
                                      m.Nodo.YNodo.Leer(f) + aumento * m.Desplazamientos.Leer(2 * n, i) / 100};
  }
  return v;
}

Figura FiguraDeMalla(const Proyecto& p, const std::string& nombre, long paso, double aumento) {
  const MallaElementos& m = p.Malla;
  const long i = Paso(p, paso);
  if (nombre == "ElementoConSuNúmeroCorrespondiente" || nombre == "ElementoConElNúmeroDelMaterial")
    return Numerada(p, nombre);
  Figura f;
  f.nombre = nombre;
  f.ejeX = "Abscisa (m)";
  f.ejeY = "Ordenada (m)";
  f.notas.push_back("Paso " + std::to_string(i) + " de " + std::to_string(m.NúmeroDeIteración));
  const Extensión x = ExtensiónDeLaMalla(p);
  for (const Campo& c : kCampos) {
    if (nombre != c.nombre) continue;
    f.título = c.título;
    double mín = 1e300, máx = -1e300;
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      mín = std::min(mín, ValorElemento(p, e, i, c.columna));
      máx = std::max(máx, ValorElemento(p, e, i, c.columna));
    }
    if (m.NúmeroDeElementos == 0) mín = máx = 0;
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      Trazo t = Contorno(p, e, nullptr, kGris, 0.5);
      t.relleno = true;
      t.colorRelleno = ColorDeTramo(TramoDeEscala(ValorElemento(p, e, i, c.columna), mín, máx));
      f.trazos.push_back(t);
    }
    Leyenda(f, x, mín, máx, "ton/m²");
    f.notas.push_back("Mínimo " + Formato(mín, "#0.00") + ", máximo " + Formato(máx, "#0.00") + " ton/m²");
    return f;
  }
  for (const Curva& c : kCurvas) {
    if (nombre != c.nombre) continue;
    f.tipo = Figura::Tipo::Gráfico;
    f.título = c.título;
    f.ejeY = c.eje;
    Trazo t;
    t.color = kAzul;
    t.marcador = "círculo";
    t.sinLínea = true;
    t.leyenda = c.eje;
    if (c.columna <= 5) {
      for (long e = 1; e <= m.NúmeroDeElementos; ++e)
        t.puntos.push_back({m.Elemento.XCentroElemento.Leer(e), ValorElemento(p, e, i, c.columna)});
    } else {
      for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
        const long n = m.Nodo.NúmeroDeNodo.Leer(r);
        t.puntos.push_back({m.Nodo.XNodo.Leer(r), m.Desplazamientos.Leer(c.columna == 7 ? 2 * n - 1 : 2 * n, i)});
      }
    }
    std::stable_sort(t.puntos.begin(), t.puntos.end(), [](const PuntoFigura& a, const PuntoFigura& b) { return a.x < b.x; });
    f.trazos.push_back(t);
    return f;
  }
  if (nombre == "MallaDeformada" || nombre == "ElementoDesplazamientoDeLosNodos") {
    const double a = aumento > 0 ? aumento : AumentoAutomático(p, i);
    const bool vectores = nombre == "ElementoDesplazamientoDeLosNodos";
    f.título = vectores ? "Desplazamiento de los nodos" : "Malla deformada sobre la malla original";
    f.notas.push_back("Aumento de los desplazamientos: " + Formato(a, "#0.0") + " veces");
    const std::size_t primero = f.trazos.size();
    MallaBase(p, f, kGris);
    if (f.trazos.size() > primero) f.trazos[primero].leyenda = "Malla original";
    const std::vector<PuntoFigura> nodos = NodosDeformados(p, i, a);
    if (vectores) {
      for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
        const long n = m.Nodo.NúmeroDeNodo.Leer(r);
        const PuntoFigura desde{m.Nodo.XNodo.Leer(r), m.Nodo.YNodo.Leer(r)};
        const PuntoFigura hasta = nodos[static_cast<std::size_t>(n)];
        if (desde == hasta) continue;
        f.flechas.push_back({desde, hasta, kRojo, 1.2, "nodo " + std::to_string(n)});
      }
    } else {
      for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
        Trazo t = Contorno(p, e, &nodos, kRojo, 1.0);
        if (e == 1) t.leyenda = "Malla deformada";
        f.trazos.push_back(t);
      }
    }
    return f;
  }
  if (nombre == "ElementosFluyendo") {
    f.título = "Elementos en fluencia (función de fluencia mayor que 0)";
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      Trazo t = Contorno(p, e, nullptr, kGris, 0.5);
      if (ValorElemento(p, e, i, 6) > 0) {
        t.relleno = true;
        t.colorRelleno = {240, 120, 60};
        t.color = kRojo;
      }
      f.trazos.push_back(t);
    }
    return f;
  }
  if (nombre == "DovelasSobreEsfuerzos") {
    f.título = "Superficie de falla y dovelas sobre los esfuerzos sigma y";
    Figura campo = FiguraDeMalla(p, "EsfuerzosSigmaYVsElementos", i);
    f.trazos = campo.trazos;
    f.rótulos = campo.rótulos;
    Trazo falla;
    falla.color = kNegro;
    falla.grosor = 2;
    falla.leyenda = "Superficie potencial de falla";
    for (long j = 1; j <= p.NúmeroPuntosFalla; ++j) falla.puntos.push_back({p.CoordenadasFalla.X.Leer(j), p.CoordenadasFalla.Y.Leer(j)});
    f.trazos.push_back(falla);
    // The element that gives its stresses to each slice base, outlined.
    for (long k = 1; k <= m.ElementoDeDovela.Tamaño(); ++k) {
      const long e = std::lround(m.ElementoDeDovela.Leer(k));
      if (e < 1 || e > m.NúmeroDeElementos) continue;
      Trazo t = Contorno(p, e, nullptr, kNegro, 2.0);
      t.nombre = "dovela " + std::to_string(k);
      if (k == 1) t.leyenda = "Elemento de la base de cada dovela";
      f.trazos.push_back(t);
    }
    if (m.FSViscoplástico != 0) f.notas.push_back("Factor de seguridad: " + Formato(m.FSViscoplástico, "#0.000") +
                                                  " (elástico " + Formato(m.FSElástico, "#0.000") + ")");
    return f;
  }
  return f;
}

}  // namespace lomaterra

namespace lomaterra {

Informe InformeElementosFinitos(const Proyecto& p) {
  const MallaElementos& m = p.Malla;
  Informe inf;
  inf.título = "Resultados del análisis de esfuerzos por elementos finitos";
  const InformaciónDelProyecto& ip = p.InformaciónProyecto;
  inf.encabezado = {"Progresiva " + ip.ProgresivaInicial + " a " + ip.ProgresivaFinal, ip.FechaProyecto,
                    ip.IngResponsable, ip.Empresa};
  inf.Título(inf.título);
  const long n = m.NúmeroDeIteración;
  inf.Párrafo(std::string(n == 2 && !m.CálculoViscoplásticoHecho ? "Comportamiento de plasticidad perfecta"
                                                                  : "Comportamiento elástico-viscoplástico") +
              ". Malla de " + std::to_string(m.NúmeroDeNodos) + " nodos y " + std::to_string(m.NúmeroDeElementos) +
              " elementos; " + std::to_string(n) + " pasos.");
  inf.Párrafo("Función de fluencia máxima " + Formato(m.FluenciaMáxima, "#0.0000") + " (elemento " +
              std::to_string(m.ElementoFluenciaMáxima) + ", punto " + std::to_string(m.PuntoFluenciaMáxima) +
              "); mínima " + Formato(m.FluenciaMínima, "#0.0000") + " (elemento " + std::to_string(m.ElementoFluenciaMínima) +
              ", punto " + std::to_string(m.PuntoFluenciaMínima) + ").");
  if (m.FSViscoplástico != 0)
    inf.Párrafo("Factor de seguridad con los esfuerzos del último paso " + Formato(m.FSViscoplástico, "#0.000") +
                "; con los esfuerzos elásticos " + Formato(m.FSElástico, "#0.000") + ".");
  for (long i : {1L, n}) {
    if (i < 1) continue;
    TablaDeTexto t;
    t.título = "Esfuerzos por elemento (ton/m²), paso " + std::to_string(i);
    t.columnas = {"Elemento", "Sigma x", "Sigma y", "Tau xy", "Sigma 1", "Sigma 3", "F"};
    for (long e = 1; e <= m.NúmeroDeElementos; ++e)
      t.filas.push_back({std::to_string(e), Formato(m.EsfuerzoX.Leer(e, i), "#0.00"), Formato(m.EsfuerzoY.Leer(e, i), "#0.00"),
                         Formato(m.EsfuerzoXY.Leer(e, i), "#0.00"), Formato(m.EsfuerzoPrincipalMayor.Leer(e, i), "#0.00"),
                         Formato(m.EsfuerzoPrincipalMenor.Leer(e, i), "#0.00"), Formato(ValorElemento(p, e, i, 6), "#0.00")});
    inf.AñadirTabla(t);
    TablaDeTexto d;
    d.título = "Desplazamientos por nodo (cm), paso " + std::to_string(i);
    d.columnas = {"Nodo", "Desplazamiento x", "Desplazamiento y"};
    for (long nodo = 1; nodo <= m.NúmeroDeNodos; ++nodo)
      d.filas.push_back({std::to_string(nodo), Formato(m.Desplazamientos.Leer(2 * nodo - 1, i), "#0.0000"),
                         Formato(m.Desplazamientos.Leer(2 * nodo, i), "#0.0000")});
    inf.AñadirTabla(d);
    if (n == 1) break;
  }
  for (const char* nombre : {"EsfuerzosSigmaYVsElementos", "FunciónFluenciaVsElementos", "MallaDeformada", "ElementosFluyendo"}) {
    inf.SaltoDePágina();
    inf.AñadirFigura(FiguraDeMalla(p, nombre));
  }
  return inf;
}

}  // namespace lomaterra
