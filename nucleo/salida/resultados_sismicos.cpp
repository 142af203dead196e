#include "salida/resultados_sismicos.h"

#include <algorithm>
#include <cmath>

#include "proyecto/compat.h"
#include "salida/malla_resultados.h"
#include "salida/registro_sismico.h"

namespace lomaterra {

namespace {

const Color kRojo{200, 40, 30}, kAzul{30, 80, 190}, kVerde{30, 140, 60}, kGris{140, 140, 140}, kNaranja{220, 120, 20},
    kMorado{130, 50, 160};
constexpr double kG = 9.81;

Trazo Serie(const std::string& leyenda, Color c, double grosor = 1.4) {
  Trazo t;
  t.leyenda = t.nombre = leyenda;
  t.color = c;
  t.grosor = grosor;
  return t;
}

Figura Gráfico(const std::string& nombre, const std::string& título, const std::string& ejeY) {
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.nombre = nombre;
  f.título = título;
  f.ejeX = "Tiempo (seg)";
  f.ejeY = ejeY;
  return f;
}

std::string F3(double x) { return Formato(x, "#0.000"); }

const char* NombreDelMétodo(char m) {
  switch (m) {
    case 'D': return "Integral de Duhamel";
    case 'P': return "Integración paso a paso de la ecuación de movimiento sin desacoplar";
    case 'M': return "Integración paso a paso desacoplada (modal)";
    default: return "Respuesta sísmica";
  }
}

}  // namespace

double TiempoDelPaso(const Proyecto& p, long t) { return p.Sísmico.TiempoRegistro.Leer(t); }

double GmaxDeElemento(const Proyecto& p, long e) {
  const DatosSísmicos& s = p.Sísmico;
  for (long g = 1; g <= s.ElementoDeGrado.Tamaño(); ++g)
    if (s.ElementoDeGrado.Leer(g) == e && s.GmaxGrado.Leer(g) > 0) return s.GmaxGrado.Leer(g);
  double máximo = 0;
  for (long t = 1; t <= s.PasosCalculados; ++t) máximo = std::max(máximo, s.MóduloCortanteActual.Leer(t, e));
  return máximo;
}

std::string EstadoDelCálculoSísmico(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  const std::string de = std::to_string(s.PasosCalculados) + " de " + std::to_string(s.NúmeroPuntosRegistro);
  std::string t;
  if (s.CálculoInterrumpido)
    t += "El cálculo se interrumpió (el usuario pulsó Cancelar o una falla del cálculo lo terminó): se calcularon " + de +
         " registros. ";
  if (s.ReglaDel75)
    t += "Se cumplió la regla del 75%: más del 75% de los nodos se desplazó más de 50 cm y se considera que la masa "
         "perdió su resistencia al corte. ";
  if (s.CorteAlcanzado)
    t += "Algún desplazamiento alcanzó el límite de corte y se le asignó el valor de -10000 ó +10000. ";
  if (t.empty())
    t = s.PasosCalculados >= s.NúmeroPuntosRegistro ? "El cálculo llegó al final del registro (" +
                                                          std::to_string(s.PasosCalculados) + " registros). "
                                                    : "Se calcularon " + de + " registros. ";
  else if (!s.CálculoInterrumpido)
    t += "Registros calculados: " + de + ". ";
  t.pop_back();
  return t;
}

Figura FiguraHistoriaNodo(const Proyecto& p, long nodo, MagnitudNodo qué, const std::string& nota) {
  const DatosSísmicos& s = p.Sísmico;
  const Tabla2<double>* tabla = &s.DesplazamientoSísmico;
  Figura f;
  switch (qué) {
    case MagnitudNodo::Desplazamiento:
      f = Gráfico("HistoriaDesplazamientoNodo", "Desplazamiento estimado del punto " + std::to_string(nodo),
                  "Desplazamiento (cm)");
      break;
    case MagnitudNodo::Velocidad:
      tabla = &s.VelocidadSísmica;
      f = Gráfico("HistoriaVelocidadNodo", "Velocidad estimada del punto " + std::to_string(nodo), "Velocidad (m/seg)");
      break;
    case MagnitudNodo::Aceleración:
      tabla = &s.AceleraciónSísmica;
      f = Gráfico("GraficaDeRegistroSísmicoEstimadoDeAceleraciones",
                  "Registro sísmico estimado de aceleraciones del punto " + std::to_string(nodo), "Aceleración (m/seg2)");
      break;
  }
  const char* unidad = qué == MagnitudNodo::Desplazamiento ? " cm" : qué == MagnitudNodo::Velocidad ? " m/seg" : " m/seg2";
  Trazo x = Serie("Dirección x", kRojo), y = Serie("Dirección y", kAzul);
  double picoX = 0, picoY = 0;
  for (long t = 1; t <= s.PasosCalculados; ++t) {
    const double tiempo = TiempoDelPaso(p, t);
    const double vx = tabla->Leer(t, 2 * nodo - 1), vy = tabla->Leer(t, 2 * nodo);
    x.puntos.push_back({tiempo, vx});
    y.puntos.push_back({tiempo, vy});
    picoX = std::max(picoX, std::abs(vx));
    picoY = std::max(picoY, std::abs(vy));
  }
  if (qué == MagnitudNodo::Aceleración) {
    // The input record, in the same unit, drawn thin and dashed behind the estimate.
    Trazo h = Serie("Registro de entrada horizontal", kGris, 1.0), v = Serie("Registro de entrada vertical", kNaranja, 1.0);
    h.discontinuo = v.discontinuo = true;
    for (long t = 1; t <= s.NúmeroPuntosRegistro; ++t) {
      h.puntos.push_back({TiempoDelPaso(p, t), s.AceleraciónHorizontal.Leer(t) * kG});
      v.puntos.push_back({TiempoDelPaso(p, t), s.AceleraciónVertical.Leer(t) * kG});
    }
    f.trazos = {h, v};
  }
  f.trazos.push_back(x);
  f.trazos.push_back(y);
  if (!nota.empty()) f.notas.push_back(nota);
  f.notas.push_back("Máximo en x: " + F3(picoX) + unidad + ";  máximo en y: " + F3(picoY) + unidad + ";  " +
                    std::to_string(s.PasosCalculados) + " registros calculados");
  if (qué != MagnitudNodo::Aceleración) {
    // The record itself is the chart "Registro sísmico"; here its peaks give the scale of the input.
    const Figura r = FiguraRegistroSísmico(p);
    if (r.notas.size() > 1) f.notas.push_back("Registro de entrada: " + r.notas[1]);
  }
  return f;
}

Figura FiguraEsfuerzosElemento(const Proyecto& p, long e, const std::string& nota) {
  const DatosSísmicos& s = p.Sísmico;
  Figura f = Gráfico("HistoriaEsfuerzosElemento", "Esfuerzos del elemento " + std::to_string(e), "Esfuerzo (ton/m2)");
  struct {
    const Tabla2<double>& t;
    const char* nombre;
    Color c;
  } columnas[] = {{s.EsfuerzoX, "Sigma x", kRojo},
                  {s.EsfuerzoY, "Sigma y", kAzul},
                  {s.EsfuerzoXY, "Tau xy", kVerde},
                  {s.EsfuerzoMayor, "Sigma 1", kNaranja},
                  {s.EsfuerzoMenor, "Sigma 3", kMorado}};
  for (const auto& c : columnas) {
    Trazo t = Serie(c.nombre, c.c);
    for (long k = 1; k <= s.PasosCalculados; ++k) t.puntos.push_back({TiempoDelPaso(p, k), c.t.Leer(k, e)});
    f.trazos.push_back(t);
  }
  if (!nota.empty()) f.notas.push_back(nota);
  f.notas.push_back("Tracción positiva; " + std::to_string(s.PasosCalculados) + " registros calculados");
  return f;
}

Figura FiguraDegradaciónElemento(const Proyecto& p, long e, const std::string& nota) {
  const DatosSísmicos& s = p.Sísmico;
  Figura f = Gráfico("HistoriaDegradaciónElemento",
                     "Módulo cortante G/Gmax y relación de amortiguamiento del elemento " + std::to_string(e),
                     "G/Gmax y relación de amortiguamiento");
  const double gmax = GmaxDeElemento(p, e);
  Trazo g = Serie("G/Gmax", kAzul), z = Serie("Relación de amortiguamiento", kRojo);
  for (long k = 1; k <= s.PasosCalculados; ++k) {
    const double t = TiempoDelPaso(p, k);
    g.puntos.push_back({t, gmax > 0 ? s.MóduloCortanteActual.Leer(k, e) / gmax : 0});
    z.puntos.push_back({t, s.RelaciónAmortiguamientoActual.Leer(k, e)});
  }
  f.trazos = {g, z};
  if (!nota.empty()) f.notas.push_back(nota);
  f.notas.push_back("Gmax = " + Formato(gmax, "#0.00") + " ton/m2");
  return f;
}

Figura FiguraDesplazamientoMáximoPorPaso(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  Figura f = Gráfico("DesplazamientoMáximoPorRegistro", "Desplazamiento máximo de cada registro", "Desplazamiento (cm)");
  Trazo t = Serie("Desplazamiento máximo", kRojo);
  for (long k = 1; k <= s.PasosCalculados; ++k)
    t.puntos.push_back({TiempoDelPaso(p, k), s.DesplazamientoMáximoPorPaso.Leer(k)});
  f.trazos = {t};
  f.notas.push_back("Máximo de todo el cálculo: " + F3(s.DesplazamientoMáximo) + " cm en el punto " +
                    std::to_string(s.NodoMáximo) + ", registro " + std::to_string(s.PasoMáximo));
  return f;
}

Figura FiguraFactorSísmicoPorPaso(const Proyecto& p, const std::vector<std::pair<long, double>>& factores) {
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.nombre = "FactorSísmicoPorRegistro";
  f.título = "Factor de seguridad al deslizamiento en cada registro";
  f.ejeX = "Registro";
  f.ejeY = "Factor de seguridad";
  Trazo t = Serie("Factor de seguridad", kAzul);
  t.marcador = "círculo";
  double mínimo = 0;
  long paso = 0;
  for (const auto& [k, F] : factores) {
    t.puntos.push_back({static_cast<double>(k), F});
    if (paso == 0 || F < mínimo) mínimo = F, paso = k;
  }
  f.trazos = {t};
  Trazo uno = Serie("F = 1", kGris, 1.0);
  uno.discontinuo = true;
  if (!factores.empty()) uno.puntos = {{static_cast<double>(factores.front().first), 1}, {static_cast<double>(factores.back().first), 1}};
  f.trazos.push_back(uno);
  const long n = p.Sísmico.PasosCalculados;
  if (factores.empty())
    f.notas.push_back("No se obtuvo el factor de seguridad en ningún registro");
  else
    f.notas.push_back("Mínimo " + Formato(mínimo, "#0.00") + " en el registro " + std::to_string(paso) + " (" +
                      Formato(TiempoDelPaso(p, paso), "#0.000") + " seg); calculado en " + std::to_string(factores.size()) +
                      " de " + std::to_string(n) + " registros");
  return f;
}

Proyecto ProyectoDelPasoSísmico(const Proyecto& p, long paso) {
  const DatosSísmicos& s = p.Sísmico;
  Proyecto q;
  q.TipoDeAnálisis = p.TipoDeAnálisis;
  q.Malla = p.Malla;
  q.CoordenadasFalla = p.CoordenadasFalla;
  q.NúmeroPuntosFalla = p.NúmeroPuntosFalla;
  q.CálculoHecho = true;
  MallaElementos& m = q.Malla;
  const long ne = m.NúmeroDeElementos, nn = m.NúmeroDeNodos;
  m.NúmeroDeIteración = 1;
  m.FSViscoplástico = m.FSElástico = 0;
  struct Par {
    Tabla2<double>& destino;
    const Tabla2<double>& origen;
  } pares[] = {{m.EsfuerzoX, s.EsfuerzoX},
               {m.EsfuerzoY, s.EsfuerzoY},
               {m.EsfuerzoXY, s.EsfuerzoXY},
               {m.EsfuerzoPrincipalMayor, s.EsfuerzoMayor},
               {m.EsfuerzoPrincipalMenor, s.EsfuerzoMenor}};
  for (Par& par : pares) {
    par.destino.Redimensionar(ne, 1);
    for (long e = 1; e <= ne; ++e) par.destino(e, 1) = par.origen.Leer(paso, e);
  }
  m.FunciónFluencia.Redimensionar(3 * ne, 1);
  m.Desplazamientos.Redimensionar(2 * nn, 1);
  for (long d = 1; d <= 2 * nn; ++d) m.Desplazamientos(d, 1) = s.DesplazamientoSísmico.Leer(paso, d);
  return q;
}

Figura FiguraDeMallaSísmica(const Proyecto& p, const std::string& nombre, long paso) {
  Figura f = FiguraDeMalla(ProyectoDelPasoSísmico(p, paso), nombre, 1);
  f.nombre = nombre + "Sísmico";
  f.título += " — sismo, registro " + std::to_string(paso);
  const std::string cuándo = "Registro " + std::to_string(paso) + " de " + std::to_string(p.Sísmico.PasosCalculados) +
                             " calculados, a los " + F3(TiempoDelPaso(p, paso)) + " seg";
  if (!f.notas.empty() && f.notas.front().rfind("Paso ", 0) == 0)
    f.notas.front() = cuándo;
  else
    f.notas.insert(f.notas.begin(), cuándo);
  return f;
}

std::vector<std::string> FilaDeNodoSísmico(const DatosSísmicos& s, long paso, long k) {
  std::vector<std::string> fila{std::to_string(k)};
  for (const auto* h : {&s.DesplazamientoSísmico, &s.AceleraciónSísmica, &s.VelocidadSísmica})
    for (const long g : {2 * k - 1, 2 * k}) fila.push_back(F3(h->Leer(paso, g)));
  return fila;
}

Informe InformeSísmico(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  const MallaElementos& m = p.Malla;
  Informe inf;
  inf.título = "Resultados del análisis sísmico";
  const InformaciónDelProyecto& ip = p.InformaciónProyecto;
  inf.encabezado = {"Progresiva " + ip.ProgresivaInicial + " a " + ip.ProgresivaFinal, ip.FechaProyecto,
                    ip.IngResponsable, ip.Empresa};
  inf.Título(inf.título);
  inf.Párrafo(std::string(NombreDelMétodo(s.MétodoRespuesta)) + ". Malla de " + std::to_string(m.NúmeroDeNodos) +
              " nodos y " + std::to_string(m.NúmeroDeElementos) + " elementos, " +
              std::to_string(s.NúmeroGradosLibertad) + " grados de libertad; modo elegido " +
              std::to_string(s.ModoElegido) + (s.ModoElegido >= 1 && s.ModoElegido <= s.Frecuencia.Tamaño()
                                                   ? " (frecuencia " + F3(s.Frecuencia.Leer(s.ModoElegido)) + " rad/seg)"
                                                   : "") +
              ". Registro de " + std::to_string(s.NúmeroPuntosRegistro) + " puntos.");
  inf.Párrafo(EstadoDelCálculoSísmico(p));
  inf.Párrafo("Desplazamiento máximo " + F3(s.DesplazamientoMáximo) + " cm en el punto " + std::to_string(s.NodoMáximo) +
              ", registro " + std::to_string(s.PasoMáximo) + " (" + F3(TiempoDelPaso(p, s.PasoMáximo)) + " seg).");
  const long paso = s.RegistroSeleccionado >= 1 && s.RegistroSeleccionado <= s.PasosCalculados ? s.RegistroSeleccionado
                                                                                               : s.PasosCalculados;
  if (m.FSSísmico > 0) inf.Párrafo("Factor de seguridad al deslizamiento: " + Formato(m.FSSísmico, "#0.00") + ".");
  if (s.FactorSísmicoMínimo > 0)
    inf.Párrafo("Menor factor de seguridad calculado: " + Formato(s.FactorSísmicoMínimo, "#0.00") + " en el registro " +
                std::to_string(s.PasoFactorSísmico) + ".");
  if (paso >= 1) {
    inf.Subtítulo("Resultados del registro " + std::to_string(paso) + " (" + F3(TiempoDelPaso(p, paso)) + " seg)" +
                  (paso == s.RegistroSeleccionado ? "" : ", el último calculado"));
    TablaDeTexto n;
    n.título = "DESPLAZAMIENTOS (cm) -  ACELERACIÓN (m/seg2) - VELOCIDAD (m/seg)";
    n.columnas = {"Pto Cord.", "desp_x", "desp_y", "acel_x", "acel_y", "vel_x", "vel_y"};
    for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
      const long k = m.Nodo.NúmeroDeNodo.Leer(r);
      n.filas.push_back(FilaDeNodoSísmico(s, paso, k));
    }
    inf.AñadirTabla(n);
    TablaDeTexto e;
    e.título = "ESFUERZOS (ton/m2)";
    e.columnas = {"Elemento.", "sigma_x", "sigma_y", "tau_xy", "sigma_1", "sigma_3", "presión_poros", "G_actual"};
    for (long k = 1; k <= m.NúmeroDeElementos; ++k)
      e.filas.push_back({std::to_string(k), F3(s.EsfuerzoX.Leer(paso, k)), F3(s.EsfuerzoY.Leer(paso, k)),
                         F3(s.EsfuerzoXY.Leer(paso, k)), F3(s.EsfuerzoMayor.Leer(paso, k)), F3(s.EsfuerzoMenor.Leer(paso, k)),
                         F3(s.PresiónPorosSísmica.Leer(paso, k)), F3(s.MóduloCortanteActual.Leer(paso, k))});
    inf.AñadirTabla(e);
  }
  // The largest displacement of the steps, at most 100 rows spread evenly over the record.
  TablaDeTexto d;
  const long cada = std::max<long>(1, (s.PasosCalculados + 99) / 100);
  d.título = "Desplazamiento máximo por registro (cm)" + (cada > 1 ? ", uno de cada " + std::to_string(cada) : std::string());
  d.columnas = {"Registro", "Tiempo (seg)", "Desplazamiento máximo"};
  for (long k = 1; k <= s.PasosCalculados; k += cada)
    d.filas.push_back({std::to_string(k), F3(TiempoDelPaso(p, k)), F3(s.DesplazamientoMáximoPorPaso.Leer(k))});
  inf.AñadirTabla(d);
  inf.SaltoDePágina();
  inf.AñadirFigura(FiguraRegistroSísmico(p));
  inf.AñadirFigura(FiguraDesplazamientoMáximoPorPaso(p));
  if (s.NodoMáximo >= 1)
    inf.AñadirFigura(FiguraHistoriaNodo(p, s.NodoMáximo, MagnitudNodo::Aceleración, "Punto del desplazamiento máximo"));
  if (paso >= 1) {
    inf.AñadirFigura(FiguraDeMallaSísmica(p, "MallaDeformada", paso));
    inf.AñadirFigura(FiguraDeMallaSísmica(p, "EsfuerzosSigmaYVsElementos", paso));
  }
  return inf;
}

}  // namespace lomaterra
