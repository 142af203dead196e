#include "salida/informe.h"

#include <algorithm>
#include <cmath>

#include "equilibrio/referencia.h"
#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/graficos.h"
#include "salida/seccion.h"

namespace lomaterra {

// --- Text helpers ------------------------------------------------------------------------------

int Caracteres(const std::string& texto) {
  int n = 0;
  for (unsigned char c : texto)
    if ((c & 0xC0) != 0x80) ++n;
  return n;
}

namespace {

// The first `n` characters of a UTF-8 text.
std::string Prefijo(const std::string& texto, int n) {
  int k = 0;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    if ((static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80) {
      if (k == n) return texto.substr(0, i);
      ++k;
    }
  }
  return texto;
}

std::vector<std::string> Palabras(const std::string& texto) {
  std::vector<std::string> r;
  std::string actual;
  for (char c : texto) {
    if (c == ' ' || c == '\n' || c == '\r' || c == '\t') {
      if (!actual.empty()) r.push_back(actual);
      actual.clear();
    } else {
      actual += c;
    }
  }
  if (!actual.empty()) r.push_back(actual);
  return r;
}

}  // namespace

std::vector<std::string> PartirTexto(const std::string& texto, int ancho) {
  ancho = std::max(ancho, 1);
  std::vector<std::string> líneas;
  // A line break in the text always starts a new line.
  std::size_t inicio = 0;
  while (inicio <= texto.size()) {
    const std::size_t fin = texto.find('\n', inicio);
    const std::string párrafo =
        texto.substr(inicio, fin == std::string::npos ? std::string::npos : fin - inicio);
    std::string línea;
    for (std::string palabra : Palabras(párrafo)) {
      while (Caracteres(palabra) > ancho) {
        if (!línea.empty()) {
          líneas.push_back(línea);
          línea.clear();
        }
        const std::string trozo = Prefijo(palabra, ancho);
        líneas.push_back(trozo);
        palabra = palabra.substr(trozo.size());
      }
      if (palabra.empty()) continue;
      if (línea.empty())
        línea = palabra;
      else if (Caracteres(línea) + 1 + Caracteres(palabra) <= ancho)
        línea += " " + palabra;
      else {
        líneas.push_back(línea);
        línea = palabra;
      }
    }
    líneas.push_back(línea);
    if (fin == std::string::npos) break;
    inicio = fin + 1;
  }
  // Empty lines at the end say nothing.
  while (líneas.size() > 1 && líneas.back().empty()) líneas.pop_back();
  return líneas;
}

std::vector<int> AnchosDeColumnas(const TablaDeTexto& t, int) {
  std::vector<int> anchos;
  for (std::size_t j = 0; j < t.columnas.size(); ++j) {
    int w = 3;
    for (const auto& p : Palabras(t.columnas[j])) w = std::max(w, Caracteres(p));
    // A caption is broken into lines of about ten characters at most; the cells never.
    w = std::max(w, std::min(Caracteres(t.columnas[j]), 10));
    for (const auto& f : t.filas)
      if (j < f.size()) w = std::max(w, Caracteres(f[j]));
    anchos.push_back(w + 2);
  }
  return anchos;
}

int LíneasEncabezado(const TablaDeTexto& t, int caracteresPorLínea) {
  const auto anchos = AnchosDeColumnas(t, caracteresPorLínea);
  int líneas = 1;
  for (std::size_t j = 0; j < t.columnas.size(); ++j)
    líneas = std::max(líneas, static_cast<int>(PartirTexto(t.columnas[j], anchos[j] - 1).size()));
  return líneas;
}

// --- Pages -------------------------------------------------------------------------------------

namespace {

// The lines a block needs on the page where it starts: a figure whole, a table its captions and
// two rows, a paragraph two lines.
int Arranque(const BloqueInforme& b, const MedidasPágina& m) {
  switch (b.tipo) {
    case BloqueInforme::Tipo::Figura:
      return std::min(std::max(m.líneasFigura, 5), m.líneas);
    case BloqueInforme::Tipo::Tabla:
      return 1 + LíneasEncabezado(b.tabla, m.caracteres) +
             static_cast<int>(std::min<std::size_t>(b.tabla.filas.size(), 2));
    case BloqueInforme::Tipo::Párrafo:
      return static_cast<int>(std::min<std::size_t>(PartirTexto(b.texto, m.caracteres).size(), 2));
    case BloqueInforme::Tipo::Título:
      return 3;
    case BloqueInforme::Tipo::Subtítulo:
      return 2;
    case BloqueInforme::Tipo::SaltoDePágina:
      return 0;
  }
  return 0;
}

}  // namespace

std::vector<PáginaInforme> Paginar(const Informe& informe, const MedidasPágina& m) {
  using E = ElementoPágina::Tipo;
  const int L = std::max(m.líneas, 10);
  std::vector<PáginaInforme> páginas;
  PáginaInforme actual;
  int usadas = 0;
  auto nueva = [&] {
    páginas.push_back(std::move(actual));
    actual = {};
    usadas = 0;
  };
  auto poner = [&](ElementoPágina e) {
    usadas += e.líneas;
    actual.elementos.push_back(std::move(e));
  };
  auto espacio = [&] {
    if (usadas > 0 && usadas < L) poner({E::Espacio, "", 0, -1, 1});
  };
  for (std::size_t k = 0; k < informe.bloques.size(); ++k) {
    const auto& b = informe.bloques[k];
    switch (b.tipo) {
      case BloqueInforme::Tipo::Título:
      case BloqueInforme::Tipo::Subtítulo: {
        const bool título = b.tipo == BloqueInforme::Tipo::Título;
        const int alto = título ? 3 : 2;
        // A heading keeps on its page the start of what follows it.
        const int siguiente =
            k + 1 < informe.bloques.size() ? Arranque(informe.bloques[k + 1], m) : 0;
        if (usadas > 0 && usadas + alto + siguiente > L) nueva();
        poner({título ? E::Título : E::Subtítulo, b.texto, k, -1, alto});
        break;
      }
      case BloqueInforme::Tipo::Párrafo: {
        for (const auto& línea : PartirTexto(b.texto, m.caracteres)) {
          if (usadas + 1 > L) nueva();
          poner({E::Línea, línea, k, -1, 1});
        }
        espacio();
        break;
      }
      case BloqueInforme::Tipo::Tabla: {
        const int cabeza = 1 + LíneasEncabezado(b.tabla, m.caracteres);
        const long filas = static_cast<long>(b.tabla.filas.size());
        // The captions and at least two rows (or all of them) start together.
        if (usadas > 0 && usadas + cabeza + std::min(filas, 2L) > L) nueva();
        poner({E::EncabezadoTabla, b.tabla.título, k, -1, cabeza});
        for (long f = 0; f < filas; ++f) {
          if (usadas + 1 > L) {
            nueva();
            poner({E::EncabezadoTabla, b.tabla.título + " (continuación)", k, -1, cabeza});
          }
          poner({E::FilaTabla, "", k, f, 1});
        }
        espacio();
        break;
      }
      case BloqueInforme::Tipo::Figura: {
        const int alto = std::min(std::max(m.líneasFigura, 5), L);
        if (usadas > 0 && usadas + alto > L) nueva();
        poner({E::Figura, b.figura.título, k, -1, alto});
        espacio();
        break;
      }
      case BloqueInforme::Tipo::SaltoDePágina:
        if (usadas > 0) nueva();
        break;
    }
  }
  if (!actual.elementos.empty() || páginas.empty()) páginas.push_back(std::move(actual));
  return páginas;
}

// --- The two reports ---------------------------------------------------------------------------

namespace {

std::string N(double v, const char* formato = "#0.00") {
  return std::isfinite(v) ? Formato(v, formato) : "---";
}

std::vector<std::string> Encabezado(const Proyecto& p) {
  const auto& i = p.InformaciónProyecto;
  std::vector<std::string> r;
  r.push_back("Proyecto: " + (p.Ventana.TextoProyecto.empty() ? std::string("(sin descripción)")
                                                              : p.Ventana.TextoProyecto));
  r.push_back("Progresiva inicial: " + i.ProgresivaInicial +
              "    Progresiva final: " + i.ProgresivaFinal + "    Fecha: " + i.FechaProyecto);
  r.push_back("Ingeniero responsable: " + i.IngResponsable + "    Empresa: " + i.Empresa);
  return r;
}

TablaDeTexto TablaCoordenadas(const std::string& título, const TablaXY& t, long n) {
  TablaDeTexto r;
  r.título = título;
  r.columnas = {"Punto", "X (m)", "Y (m)"};
  for (long i = 1; i <= n; ++i)
    r.filas.push_back({std::to_string(i), N(t.X.Leer(i)), N(t.Y.Leer(i))});
  return r;
}

std::string TextoTipoDeAnálisis(const std::string& t) {
  if (t == "T") return "Equilibrio límite (T)";
  if (t == "F") return "Elementos finitos (F)";
  return "sin elegir";
}

std::string TextoMaterial(const std::string& t) {
  if (t == "S") return "Suelo (S)";
  if (t == "R") return "Roca (R)";
  return "sin elegir";
}

void Geometría(Informe& inf, const Proyecto& p) {
  inf.Subtítulo("Geometría");
  if (p.NúmeroPuntosTalud > 0)
    inf.AñadirTabla(TablaCoordenadas("Coordenadas del talud, presa o túnel", p.CoordenadasTalud,
                                     p.NúmeroPuntosTalud));
  else
    inf.Párrafo("No hay coordenadas del talud.");
  if (p.NúmeroPuntosFalla > 0)
    inf.AñadirTabla(TablaCoordenadas("Coordenadas de la superficie de falla", p.CoordenadasFalla,
                                     p.NúmeroPuntosFalla));
  else
    inf.Párrafo("No hay coordenadas de la superficie de falla.");
  if (p.NúmeroTramosFalla > 0) {
    TablaDeTexto t;
    t.título = "Uniones entre los puntos de la superficie de falla";
    t.columnas = {"Tramo", "Punto inicial", "Punto final", "Unión"};
    for (long k = 1; k <= p.NúmeroTramosFalla; ++k) {
      const std::string u = p.TramoFalla.TipoUnión.Leer(k);
      const std::string nombre = u == "L"   ? "L (rectas)"
                                 : u == "C" ? "C (arco circular)"
                                 : u == "P" ? "P (polinomio)"
                                            : u;
      t.filas.push_back({std::to_string(k), N(p.TramoFalla.PuntoInicial.Leer(k), "#"),
                         N(p.TramoFalla.PuntoFinal.Leer(k), "#"), nombre});
    }
    inf.AñadirTabla(t);
  }
  if (p.NúmeroPuntosFreático > 0)
    inf.AñadirTabla(TablaCoordenadas("Coordenadas del nivel freático", p.CoordenadasFreático,
                                     p.NúmeroPuntosFreático));
  else
    inf.Párrafo("No hay nivel freático.");
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    TablaDeTexto t;
    t.título = "Límite inferior del estrato " + std::to_string(s);
    t.columnas = {"Punto", "X (m)", "Y (m)"};
    for (long j = 1; j <= p.PuntosEstrato.Leer(s); ++j)
      t.filas.push_back({std::to_string(j), N(p.XEstrato.Leer(s, j)), N(p.YEstrato.Leer(s, j))});
    inf.AñadirTabla(t);
  }
}

void Estratos(Informe& inf, const Proyecto& p) {
  inf.Subtítulo("Características geomecánicas de los estratos");
  if (p.NúmeroEstratos < 1 || !p.EstratosCaracterizados) {
    inf.Párrafo("No se han dado las características geomecánicas de los estratos.");
    return;
  }
  const auto& e = p.Estrato;
  TablaDeTexto t;
  t.título = "Estratos";
  if (p.TipoDeMaterial == "R") {
    t.columnas = {"Estrato",
                  "mi",
                  "GSI",
                  "m macizo",
                  "s macizo",
                  "γ húmedo (ton/m3)",
                  "γ saturado (ton/m3)",
                  "σci (kg/cm2)",
                  "Cohesión (ton/m2)",
                  "Fricción (°)"};
    for (long s = 1; s <= p.NúmeroEstratos; ++s)
      t.filas.push_back(
          {std::to_string(s), N(e.m_intacta.Leer(s)), N(e.Parámetro_GSI.Leer(s), "#0.0"),
           N(e.m_macizo.Leer(s), "#0.0000"), N(e.s_macizo.Leer(s), "#0.000000"),
           N(e.PesoUnitarioHúmedo.Leer(s), "#0.000"), N(e.PesoUnitarioSaturado.Leer(s), "#0.000"),
           N(e.C_Simple.Leer(s)), N(e.Cohesión.Leer(s)), N(e.Fricción.Leer(s))});
  } else {
    t.columnas = {"Estrato",
                  "Cohesión (ton/m2)",
                  "Fricción (°)",
                  "γ húmedo (ton/m3)",
                  "γ saturado (ton/m3)",
                  "Tipo",
                  "Parámetro de presión B",
                  "Cv (cm2/s)",
                  "Tiempo de construcción (meses)"};
    for (long s = 1; s <= p.NúmeroEstratos; ++s)
      t.filas.push_back({std::to_string(s), N(e.Cohesión.Leer(s)), N(e.Fricción.Leer(s)),
                         N(e.PesoUnitarioHúmedo.Leer(s), "#0.000"),
                         N(e.PesoUnitarioSaturado.Leer(s), "#0.000"),
                         e.TipoEstrato.Leer(s) == 1 ? "A (relleno)" : "B (natural)",
                         N(e.ParámetroPresión.Leer(s), "#0.000"),
                         N(e.CoeficienteConsolidaciónVertical.Leer(s), "#0.000000"),
                         N(e.TiempoDeConstrucción.Leer(s))});
  }
  inf.AñadirTabla(t);
}

void Cargas(Informe& inf, const Proyecto& p) {
  inf.Subtítulo("Cargas");
  if (p.CargasUniformesDadas && p.NúmeroCargasUniformes > 0) {
    TablaDeTexto t;
    t.título = "Cargas uniformemente distribuidas";
    t.columnas = {"Carga", "xo (m)", "yo (m)", "xf (m)", "yf (m)", "qx (ton/m2)", "qy (ton/m2)"};
    const auto& c = p.CargaUniforme;
    for (long k = 1; k <= p.NúmeroCargasUniformes; ++k)
      t.filas.push_back({std::to_string(k), N(c.xo.Leer(k)), N(c.yo.Leer(k)), N(c.xf.Leer(k)),
                         N(c.yf.Leer(k)), N(c.qx.Leer(k)), N(c.qy.Leer(k))});
    inf.AñadirTabla(t);
  } else {
    inf.Párrafo("No hay cargas uniformemente distribuidas.");
  }
  if (p.CargasPuntualesDadas && p.NúmeroCargasPuntuales > 0) {
    TablaDeTexto t;
    t.título = "Cargas puntuales";
    t.columnas = {"Carga", "X (m)", "Y (m)", "Px (ton/m)", "Py (ton/m)"};
    const auto& c = p.CargaPuntual;
    for (long k = 1; k <= p.NúmeroCargasPuntuales; ++k)
      t.filas.push_back({std::to_string(k), N(c.Xpuntual.Leer(k)), N(c.Ypuntual.Leer(k)),
                         N(c.Px.Leer(k)), N(c.Py.Leer(k))});
    inf.AñadirTabla(t);
  } else {
    inf.Párrafo("No hay cargas puntuales.");
  }
}

void Parámetros(Informe& inf, const Proyecto& p) {
  inf.Subtítulo("Constantes de cálculo y grieta de tracción");
  if (!p.ParámetrosInicialesDados) {
    inf.Párrafo("No se han dado los parámetros de cálculo iniciales.");
    return;
  }
  const auto& c = p.ParámetrosIniciales;
  TablaDeTexto t;
  t.título = "Parámetros de cálculo";
  t.columnas = {"Parámetro", "Valor"};
  t.filas.push_back(
      {"Método de cálculo", std::to_string(c.MétodoDeCálculo) + " - " + NombreDelMétodo(p)});
  t.filas.push_back({"Factor de seguridad inicial", N(c.FSInicial, "#0.000")});
  if (c.MétodoDeCálculo == 1) {
    t.filas.push_back({"Multiplicador de Lagrange µ1", N(c.Multiplicador1, "#0.000000")});
    t.filas.push_back({"Multiplicador de Lagrange µ2", N(c.Multiplicador2, "#0.000000")});
    if (p.TipoDeMaterial != "R")
      t.filas.push_back({"Esfuerzo inicial en la cresta (ton/m2)", N(c.EsfuerzoInicialCresta)});
  }
  if (p.SuperficieCircular()) {
    t.filas.push_back({"Radio de la superficie circular (m)", N(c.Radio)});
    t.filas.push_back({"Varía el radio", c.VaríaRadio ? "Sí" : "No"});
  } else {
    t.filas.push_back({"Referencia de momentos X (m)", N(c.ReferenciaMomentoX)});
    t.filas.push_back({"Referencia de momentos Y (m)", N(c.ReferenciaMomentoY)});
  }
  t.filas.push_back({"Número de dovelas", N(c.NúmeroDovelas, "#")});
  t.filas.push_back(
      {"Coeficiente sísmico horizontal kh", N(c.CoeficienteSísmicoHorizontal, "#0.000")});
  t.filas.push_back({"Coeficiente sísmico vertical kv", N(c.CoeficienteSísmicoVertical, "#0.000")});
  t.filas.push_back({"Parámetros instantáneos", c.ParámetrosInstantáneos == 0
                                                    ? std::string("No")
                                                    : std::to_string(c.ParámetrosInstantáneos)});
  inf.AñadirTabla(t);
  const auto& g = p.GrietaTracción;
  const bool grieta = g.OrdenadaPrimerPunto != g.OrdenadaSegundoPunto ||
                      g.AbscisaPrimerPunto != g.AbscisaSegundoPunto;
  if (!grieta) {
    inf.Párrafo("No hay grieta de tracción.");
    return;
  }
  TablaDeTexto gt;
  gt.título = "Grieta de tracción";
  gt.columnas = {"Punto", "X (m)", "Y (m)"};
  gt.filas.push_back(
      {"Primer punto (superior)", N(g.AbscisaPrimerPunto), N(g.OrdenadaPrimerPunto)});
  gt.filas.push_back(
      {"Segundo punto (inferior)", N(g.AbscisaSegundoPunto), N(g.OrdenadaSegundoPunto)});
  if (g.OrdenadaNF > 0)
    gt.filas.push_back({"Nivel del agua en la grieta", N(g.AbscisaNF), N(g.OrdenadaNF)});
  inf.AñadirTabla(gt);
  if (g.OrdenadaNF > 0)
    inf.Párrafo("Empuje del agua en la grieta: " + N(g.EmpujeGrieta) + " ton/m.");
}

// The slice table in parts of at most `columnas` columns each, the slice number repeated.
std::vector<TablaDeTexto> Partes(const TablaDeTexto& t, std::size_t columnas) {
  std::vector<TablaDeTexto> r;
  if (t.columnas.size() <= columnas + 1) return {t};
  const std::size_t partes = (t.columnas.size() - 1 + columnas - 1) / columnas;
  for (std::size_t k = 0; k < partes; ++k) {
    TablaDeTexto parte;
    parte.título = t.título + " (" + std::to_string(k + 1) + " de " + std::to_string(partes) + ")";
    const std::size_t desde = 1 + k * columnas,
                      hasta = std::min(t.columnas.size(), desde + columnas);
    parte.columnas.push_back(t.columnas[0]);
    for (std::size_t j = desde; j < hasta; ++j) parte.columnas.push_back(t.columnas[j]);
    for (const auto& f : t.filas) {
      std::vector<std::string> fila{f[0]};
      for (std::size_t j = desde; j < hasta && j < f.size(); ++j) fila.push_back(f[j]);
      parte.filas.push_back(std::move(fila));
    }
    r.push_back(std::move(parte));
  }
  return r;
}

}  // namespace

Informe InformeDeDatos(const Proyecto& p) {
  Informe inf;
  inf.título = "Información dada al programa";
  inf.encabezado = Encabezado(p);
  inf.Título("Información dada al programa");
  inf.Subtítulo("Información del proyecto");
  TablaDeTexto t;
  t.título = "Proyecto";
  t.columnas = {"Dato", "Valor"};
  const auto& i = p.InformaciónProyecto;
  t.filas = {{"Descripción", p.Ventana.TextoProyecto},
             {"Progresiva inicial", i.ProgresivaInicial},
             {"Progresiva final", i.ProgresivaFinal},
             {"Fecha", i.FechaProyecto},
             {"Ingeniero responsable", i.IngResponsable},
             {"Empresa", i.Empresa},
             {"Tipo de análisis", TextoTipoDeAnálisis(p.TipoDeAnálisis)},
             {"Material", TextoMaterial(p.TipoDeMaterial)},
             {"Archivo", p.Ventana.NombreArchivo.empty() ? std::string("(sin guardar)")
                                                         : p.Ventana.NombreArchivo}};
  inf.AñadirTabla(t);
  Geometría(inf, p);
  Estratos(inf, p);
  Cargas(inf, p);
  Parámetros(inf, p);
  if (p.NúmeroPuntosTalud > 0) {
    inf.Subtítulo("Sección analizada");
    inf.AñadirFigura(FiguraSección(p));
  }
  return inf;
}

Informe InformeDeResultados(const Proyecto& p) {
  Informe inf;
  inf.título = "Resultados del análisis por equilibrio límite";
  inf.encabezado = Encabezado(p);
  inf.Título("Resultados del análisis por equilibrio límite");
  if (!HayResultados(p)) {
    inf.Párrafo("No hay resultados de un cálculo por equilibrio límite.");
    return inf;
  }
  std::string resumen = "Método: " + NombreDelMétodo(p) + ". Material: " +
                        (p.TipoDeMaterial == "R" ? std::string("roca") : std::string("suelo")) +
                        ". Número de dovelas: " + std::to_string(NúmeroDeDovelas(p)) + ".";
  if (p.DesembalseRápido) resumen += " Análisis de desembalse rápido.";
  if (p.ParámetrosIniciales.CoeficienteSísmicoHorizontal != 0 ||
      p.ParámetrosIniciales.CoeficienteSísmicoVertical != 0)
    resumen += " Coeficientes sísmicos kh = " +
               N(p.ParámetrosIniciales.CoeficienteSísmicoHorizontal, "#0.000") +
               ", kv = " + N(p.ParámetrosIniciales.CoeficienteSísmicoVertical, "#0.000") + ".";
  inf.Párrafo(resumen);
  inf.Subtítulo("Factor de seguridad: " + N(FactorDeSeguridadFinal(p), "#0.000"));
  {
    std::string referencia = "Cifras aparte, de referencia:";
    for (const auto& línea : LíneasDeReferencia(FactoresDeReferencia(p))) referencia += " " + línea;
    inf.Párrafo(referencia);
  }
  inf.AñadirTabla(TablaHistoriaIteraciones(p));
  inf.Subtítulo("Resultados en las dovelas");
  for (const auto& parte : Partes(TablaResultadosDovelas(p), 8)) inf.AñadirTabla(parte);
  inf.Subtítulo("Sumas");
  inf.AñadirTabla(TablaSumas(p));
  const auto& a = p.Anclajes;
  if (a.FSConAnclaje > 0 && (a.SeparaciónAnclajesActivo > 0 || a.SeparaciónAnclajesPasivo > 0)) {
    inf.Subtítulo("Anclajes");
    TablaDeTexto t;
    t.título = "Anclajes para el factor de seguridad buscado";
    t.columnas = {"Dato", "Valor"};
    t.filas = {{"Factor de seguridad buscado", N(a.FSConAnclaje, "#0.000")},
               {"Inclinación de los anclajes bajo la horizontal (°)", N(a.InclinaciónAnclajes)},
               {"Diámetro de una guaya (mm)", N(a.DiámetroAnclajes)},
               {"Esfuerzo de rotura de una guaya (kg/cm2)", N(a.EsfuerzoRoturaAnclaje)},
               {"Número de guayas por anclaje", N(a.NúmeroGuayas, "#")},
               {"Separación de anclajes activos (m)", N(a.SeparaciónAnclajesActivo)},
               {"Separación de anclajes pasivos (m)", N(a.SeparaciónAnclajesPasivo)}};
    inf.AñadirTabla(t);
  }
  inf.SaltoDePágina();
  inf.Subtítulo("Gráficos");
  inf.AñadirFigura(FiguraSecciónConEsfuerzos(p));
  inf.AñadirFigura(FiguraGráfico(p, "GráficoEsfuerzosNormalesTotalesEfectivosTangenciales"));
  inf.AñadirFigura(FiguraGráfico(p, "GráficoResistenciaAlCorteVsEsfuerzoNormal"));
  if (HayEsfuerzosPrincipales(p))
    inf.AñadirFigura(FiguraGráfico(p, "GráficoDeEsfuerzosPrincipales"));
  return inf;
}

}  // namespace lomaterra
