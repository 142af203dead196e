// lomaterra-galeria: renders the desktop program without a screen and writes what it shows to
// PNG files for a person to look at: the main window with a sample project, its menus, a message
// box and a question box, the help viewer, a sample of the generic screen view, and every screen
// that a menu command opens on the sample project.
//
//   lomaterra-galeria [CARPETA] [PROYECTO.cod]
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFont>
#include <QMenu>
#include <QMenuBar>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QTextBrowser>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <set>
#include <string>

#include "pantallas/busqueda.h"
#include "salida/busqueda_figura.h"
#include "ayuda_qt.h"
#include "icono.h"
#include "interfaz_qt.h"
#include "muestra.h"
#include "pantallas/comandos_archivo.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "pantallas/anclajes.h"
#include "pintor.h"
#include "salida/graficos.h"
#include "salida/registro_sismico.h"
#include "sismico/formas_modales.h"
#include "sismico/registro.h"
#include "salida/formas_modales.h"
#include "salida/malla_resultados.h"
#include "elementos/viscoplastico.h"
#include "salida_figura_qt.h"
#include "ventana_principal_qt.h"
#include "vista_pantalla.h"

using namespace lomaterra;

namespace {

QString carpeta;
std::set<std::string> guardadas;
int fallos = 0;

void Guardar(QWidget& w, const std::string& nombre) {
  w.show();
  QApplication::processEvents();
  QPixmap imagen = w.grab();
  // A window's picture carries its title on a bar of its own, as a window manager would draw it.
  if (w.isWindow() && !qobject_cast<QMenu*>(&w) && !w.windowTitle().isEmpty()) {
    const int alto = 28;
    QPixmap conTítulo(imagen.width(), imagen.height() + alto);
    conTítulo.fill(Qt::white);
    QPainter pintor(&conTítulo);
    pintor.fillRect(0, 0, imagen.width(), alto, QColor(0x3a, 0x4e, 0x66));
    pintor.setPen(Qt::white);
    QFont letra = QApplication::font();
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.drawText(QRect(10, 0, imagen.width() - 20, alto), Qt::AlignVCenter | Qt::AlignLeft,
                    w.windowTitle());
    pintor.drawPixmap(0, alto, imagen);
    pintor.end();
    imagen = conTítulo;
  }
  const QString ruta = QDir(carpeta).filePath(Q(nombre) + ".png");
  if (imagen.isNull() || !imagen.save(ruta)) {
    std::fprintf(stderr, "no se pudo guardar %s\n", ruta.toUtf8().constData());
    ++fallos;
    return;
  }
  guardadas.insert(nombre);
  std::printf("%s (%dx%d)\n", ruta.toUtf8().constData(), imagen.width(), imagen.height());
}

// Ends the command that opened a screen once its picture is taken.
struct Corte {};

// Answers every question the same way and stops a command that asks without end.
class Guion : public InterfazGuionada {
 public:
  explicit Guion(bool sí) : InterfazGuionada("", sí) {}
  bool HacerPregunta(const std::string& t, const std::string& título) override {
    Contar();
    return InterfazGuionada::HacerPregunta(t, título);
  }
  void HacerMensaje(const std::string& t, const std::string& título) override {
    Contar();
    InterfazGuionada::HacerMensaje(t, título);
  }

 private:
  void Contar() {
    if (++cuenta_ > 200) throw Corte{};
  }
  int cuenta_ = 0;
};

// A screen of every kind of control, for the look of the generic view.
class PantallaDeMuestra : public Pantalla {
 public:
  PantallaDeMuestra() {
    nombre = "MuestraVistaGenérica";
    título = "Cargas uniformes distribuidas sobre  la cara del talud";
    nota =
        "'qx' es positiva cuando aplique compresión al talud. Esta dirigida en dirección "
        "horizontal (eje de las "
        "abscisas).";
    campos = {{"TextoAbscisaInicial", "Abscisa inicial xo (m):", "48",
               "Abscisa menor del tramo cargado", false},
              {"TextoOrdenadaInicial", "Ordenada inicial yo (m):", "20", "", false},
              {"TextoAbscisaFinal", "Abscisa final xf (m):", "56", "", false},
              {"TextoOrdenadaFinal", "Ordenada final yf (m):", "20", "", false},
              {"TextoCargaQx", "Carga qx (ton/m2):", "0", "", false},
              {"TextoCargaQy", "Carga qy (ton/m2):", "2", "", false},
              {"TextoNúmeroDeCargas", "Número de cargas:", "1", "", true}};
    ListaPantalla l;
    l.nombre = "ListaCargas";
    l.columnas = {"Carga", "xo (m)", "yo (m)", "xf (m)", "yf (m)", "qx (ton/m2)", "qy (ton/m2)"};
    l.filas = {{"1", "48.00", "20.00", "56.00", "20.00", "0.00", "2.00"}};
    l.seleccionada = 1;
    listas = {l};
    botones = {{"BotónAgregar", "&Agregar", {}},
               {"BotónModificar", "&Modificar", {}},
               {"BotónAceptar", "A&ceptar", {}},
               {"BotónCancelar", "&Cancelar", {}}};
  }
  void Activar(Interfaz&) override {}
};

void Pantallas(const Proyecto& muestra, const std::string& variante, std::ofstream& transcripción) {
  for (const EntradaMenú& e : ÁrbolDeMenús()) {
    if (!e.acción) continue;
    // Nothing that writes a file or ends the program.
    if (e.nombre == "MenúArchivoSalir" || e.nombre == "MenúArchivoGuardar" ||
        e.nombre == "MenúArchivoGuardarComo" || e.nombre == "ArchivoNuevo")
      continue;
    // First with No to every question, then with Yes when No opened no new screen.
    for (bool sí : {false, true}) {
      Proyecto copia = muestra;
      Guion guion(sí);
      InterfazQt ui;
      ui.Sustituto(&guion);
      bool nueva = false;
      ui.AlMostrar([&](VistaPantalla& vista) {
        const std::string nombre =
            vista.pantalla().nombre.empty() ? e.nombre : vista.pantalla().nombre;
        if (!guardadas.count(nombre)) {
          Guardar(vista, nombre);
          nueva = true;
        }
        throw Corte{};
      });
      std::string falla;
      try {
        EjecutarComando(e.acción, copia, ui);
      } catch (const Corte&) {
      } catch (const std::exception& ex) {
        falla = ex.what();
      }
      transcripción << "== " << variante << ": " << e.nombre << (sí ? " [Sí]" : " [No]") << "\n";
      for (const Apunte& a : guion.Transcripción())
        transcripción << "  " << InterfazGuionada::Línea(a) << "\n";
      if (!falla.empty()) transcripción << "  (falla: " << falla << ")\n";
      if (nueva) break;
    }
  }
}

// The sample as it stands, and as it stands with each other method chosen and after a
// calculation, so that the screens of every method and of the results are reached too.
void TodasLasPantallas(const Proyecto& muestra, std::ofstream& transcripción) {
  Pantallas(muestra, "muestra", transcripción);
  const struct {
    const char* nombre;
    Entero método;
  } métodos[] = {{"Leshchinsky", 1}, {"Bishop", 2}, {"Janbu", 4}};
  for (const auto& m : métodos) {
    Proyecto p = muestra;
    auto& q = p.ParámetrosIniciales;
    q.MétodoDeCálculo = m.método;
    q.Multiplicador1 = 30;  // an abscissa between the ends of the failure surface
    q.Multiplicador2 = 45;  // an ordinate above the crest
    q.EsfuerzoInicialCresta = 0;
    Pantallas(p, m.nombre, transcripción);
  }
  Proyecto calculada = muestra;
  InterfazGuionada mudo("N");
  const auto árbol = ÁrbolDeMenús();
  if (const EntradaMenú* fellenius = BuscarEntrada(árbol, "MétodoFellenius"))
    EjecutarComando(fellenius->acción, calculada, mudo);
  calculada.CálculoHecho = true;
  calculada.ParámetrosIniciales.ParámetrosInstantáneos = 2;
  Pantallas(calculada, "calculada", transcripción);
  // The finite-element sample: the mesh screens and the mesh drawn on the section.
  Proyecto elementos;
  InterfazGuionada lector;
  if (LeerProyecto(elementos, LOMATERRA_EJEMPLO_ELEMENTOS, lector)) Pantallas(elementos, "elementos", transcripción);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setFont(QFont("DejaVu Sans", 9));
  CargarTraducciónDeQt(app);
  QApplication::setWindowIcon(IconoLomaterra());
  const QStringList argumentos = QApplication::arguments();
  carpeta = argumentos.size() > 1 ? argumentos[1] : QStringLiteral("galeria");
  QDir().mkpath(carpeta);

  Proyecto muestra;
  ProyectoDeMuestra(muestra);
  if (argumentos.size() > 2) {
    InterfazGuionada mudo;
    AbrirArchivoDeProyecto(muestra, mudo, S(argumentos[2]));
    for (const Apunte& a : mudo.Transcripción())
      std::fprintf(stderr, "%s\n", InterfazGuionada::Línea(a).c_str());
  }

  {
    Proyecto p = muestra;
    VentanaPrincipalQt ventana(p);
    ventana.interfaz().Estado("Proyecto de muestra abierto.");
    Guardar(ventana, "ventana_principal");
    for (QMenu* menú : ventana.menuBar()->findChildren<QMenu*>()) {
      if (menú->objectName().isEmpty()) continue;  // the bar's own overflow menu
      menú->popup(QPoint(0, 0));
      Guardar(*menú, "menú_" + S(menú->objectName()));
      menú->hide();
    }
    ventana.hide();
  }
  {
    // The same window after Fellenius has run from its menu.
    Proyecto p = muestra;
    VentanaPrincipalQt ventana(p);
    InterfazGuionada guion("N");
    ventana.interfaz().Sustituto(&guion);
    if (ventana.EjecutarMenú("MétodoFellenius")) {
      Guardar(ventana, "ventana_principal_tras_fellenius");
      // Every figure of the chart menu on that calculation, as the export buttons write them.
      for (const std::string& nombre : NombresDeGráficos()) {
        QString error;
        if (!ExportarPNG(FiguraGráfico(p, nombre), QDir(carpeta).filePath(Q("figura_" + nombre) + ".png"), &error))
          ++fallos;
      }
      // The anchor screen on that calculation, as its button on the result screen opens it.
      InterfazQt ui;
      ui.Sustituto(&guion);
      ui.AlMostrar([](VistaPantalla& vista) {
        Guardar(vista, vista.pantalla().nombre.empty() ? "anclajes" : vista.pantalla().nombre);
        throw Corte{};
      });
      try {
        AbrirAnclajes(p, ui, false);
      } catch (const Corte&) {
      }
    }
    ventana.hide();
  }
  {
    // A block of soil 12 m × 6 m under its own weight, linear triangles, base and sides fixed,
    // weak enough to yield: the viscoplastic run and every mesh figure on its results.
    Proyecto p;
    p.TipoDeAnálisis = "F";
    p.TipoDeMaterial = "S";
    p.EstratosCaracterizados = true;
    p.NúmeroPuntosTalud = 2;
    p.CoordenadasTalud.Redimensionar(2);
    p.CoordenadasTalud.X[1] = 100, p.CoordenadasTalud.Y[1] = 6.01, p.CoordenadasTalud.X[2] = -100, p.CoordenadasTalud.Y[2] = 6.01;
    p.NúmeroEstratos = 1;
    p.PuntosEstrato.Redimensionar(1);
    p.PuntosEstrato[1] = 2;
    p.XEstrato.Redimensionar(1, 2);
    p.YEstrato.Redimensionar(1, 2);
    p.XEstrato(1, 1) = 100, p.YEstrato(1, 1) = -100, p.XEstrato(1, 2) = -100, p.YEstrato(1, 2) = -100;
    p.Estrato.RedimensionarConservando(1);
    p.Estrato.PesoUnitarioHúmedo[1] = p.Estrato.PesoUnitarioSaturado[1] = 1.8;
    p.Estrato.Cohesión[1] = 1.0, p.Estrato.Fricción[1] = 20, p.Estrato.Viscosidad[1] = 1000;
    MallaElementos& m = p.Malla;
    m.MóduloElasticidad.Redimensionar(1);
    m.CoeficientePoisson.Redimensionar(1);
    m.MóduloElasticidad[1] = 2000, m.CoeficientePoisson[1] = 0.3, m.IntervaloDeTiempo = 0.01;
    const long nx = 12, ny = 6, nn = (nx + 1) * (ny + 1);
    auto num = [&](long i, long j) { return 1 + i * (ny + 1) + j; };
    auto X = [&](long i, long j) { return static_cast<double>(i) + 0.001 * static_cast<double>((3 * i + 5 * j) % 7 + 1); };
    auto Y = [&](long i, long j) { return static_cast<double>(j) + 0.001 * static_cast<double>((5 * i + 3 * j) % 7 + 1); };
    m.NúmeroDeNodos = static_cast<Entero>(nn);
    m.Nodo.Redimensionar(nn);
    for (long i = 0; i <= nx; ++i)
      for (long j = 0; j <= ny; ++j) {
        const long f = nn - num(i, j) + 1;
        m.Nodo.NúmeroDeNodo[f] = static_cast<Entero>(num(i, j)), m.Nodo.XNodo[f] = X(i, j), m.Nodo.YNodo[f] = Y(i, j);
      }
    m.NúmeroDeElementos = static_cast<Entero>(2 * nx * ny);
    m.Elemento.Redimensionar(2 * nx * ny);
    long e = 0;
    auto poner = [&](std::initializer_list<std::pair<long, long>> l) {
      ++e;
      m.Elemento.NodosPorElemento[e] = 3, m.Elemento.PuntosIntegración[e] = 1, m.Elemento.MaterialDeElemento[e] = 1;
      m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = 2;
      int k = 0;
      double sx = 0, sy = 0;
      for (const auto& [i, j] : l) {
        ++k;
        m.Elemento.NodoDeElemento(e, k) = m.Elemento.NúmeroElemento(e, k) = static_cast<double>(num(i, j));
        m.Elemento.XElemento(e, k) = X(i, j), m.Elemento.YElemento(e, k) = Y(i, j);
        sx += X(i, j), sy += Y(i, j);
      }
      m.Elemento.XCentroElemento[e] = sx / 3, m.Elemento.YCentroElemento[e] = sy / 3;
    };
    for (long i = 0; i < nx; ++i)
      for (long j = 0; j < ny; ++j) {
        poner({{i, j}, {i + 1, j}, {i + 1, j + 1}});
        poner({{i, j}, {i + 1, j + 1}, {i, j + 1}});
      }
    long fr = 0;
    m.NodoConRestricción.Redimensionar(nx + 1 + 2 * ny);
    for (long i = 0; i <= nx; ++i)
      for (long j = 0; j <= ny; ++j)
        if (j == 0 || i == 0 || i == nx) {
          ++fr;
          m.NodoConRestricción.NodoRestringido[fr] = static_cast<double>(num(i, j));
          m.NodoConRestricción.RestricciónX[fr] = m.NodoConRestricción.RestricciónY[fr] = "N";
        }
    m.NúmeroNodosConRestricción = static_cast<std::int32_t>(fr);
    m.NodosDefinidos = m.ElementosDefinidos = m.MaterialesAsignados = m.CaracterísticasElásticasDadas = true;
    m.NodosRestringidosDefinidos = m.ConfirmarElementos = true;
    InterfazGuionada guion("N");
    CálculoEsfuerzosComportamientoViscoplástico(p, guion);
    for (const std::string& nombre : NombresDeFigurasDeMalla()) {
      QString error;
      if (!ExportarPNG(FiguraDeMalla(p, nombre), QDir(carpeta).filePath(Q("figura_" + nombre) + ".png"), &error)) ++fallos;
    }
  }
  {
    auto caja = CrearCaja("Debe dar la información del proyecto. Entre al menú 'Archivo'",
                          "Información requerida", false, nullptr);
    Guardar(*caja, "caja_mensaje");
    auto pregunta =
        CrearCaja("No ha guardado los datos actuales, ¿desea guardarlos?", "", true, nullptr);
    Guardar(*pregunta, "caja_pregunta");
    // A long text wraps and the box grows; the stratum check of the soil screen is the longest
    // of its kind.
    auto larga = CrearCaja(
        "El peso unitario saturado es mayor que el peso unitario húmedo. Observe bien los valores "
        "antes de salir de esta pantalla. ¿Es correcto el valor dado para peso unitario saturado?",
        "", true, nullptr);
    Guardar(*larga, "caja_texto_largo");
    auto falla = CrearCaja(TextoDeFallo("raíz cuadrada de un número negativo en la ordenada del "
                                        "arco de falla"),
                           TítuloDeFallo(), false, nullptr);
    Guardar(*falla, "caja_falla");
    // "Guardar como" in Spanish, on the project's own file.
    InterfazQt guardar;
    const QString archivo = QDir::temp().filePath("presa_de_tierra.cod");
    guardar.AlNombreActual([archivo] { return archivo; });
    const FiltroQt f =
        ConvertirFiltro("Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod", 2);
    QFileDialog diálogo(nullptr, QStringLiteral("Guardar como"), QString(), f.filtros);
    diálogo.setOption(QFileDialog::DontUseNativeDialog, true);
    guardar.ConfigurarGuardar(diálogo, f);
    diálogo.resize(760, 460);
    Guardar(diálogo, "dialogo_guardar_como");
    diálogo.hide();
    // The about box with the text of its own command.
    InterfazGuionada guion;
    MenúAyudaAcercaDe(muestra, guion);
    const Apunte a = guion.Transcripción().empty() ? Apunte{} : guion.Transcripción().back();
    auto acerca = CrearCaja(a.texto, a.título, false, nullptr);
    acerca->setIconPixmap(IconoLomaterra().pixmap(64, 64));
    Guardar(*acerca, "caja_acerca_de");
  }
  {
    const QString ayuda = InterfazQt::BuscarAyuda("AYUDALOMATERRA.HLP");
    if (ayuda.isEmpty()) {
      std::fprintf(stderr, "no se encontró AYUDALOMATERRA.HLP\n");
      ++fallos;
    } else {
      QDialog* ventana = CrearVentanaAyuda(ayuda, nullptr);
      Guardar(*ventana, "ayuda");
      if (auto* texto = ventana->findChild<QTextBrowser*>()) {
        texto->scrollToAnchor("teoria");
        Guardar(*ventana, "ayuda_teoría");
      }
      delete ventana;
    }
  }
  {
    // Two charts of the sample project after Fellenius, as their dialogs show them.
    Proyecto p = muestra;
    InterfazGuionada mudo("N");
    const auto árbol = ÁrbolDeMenús();
    if (const EntradaMenú* fellenius = BuscarEntrada(árbol, "MétodoFellenius"))
      EjecutarComando(fellenius->acción, p, mudo);
    for (const char* nombre : {"GráficoEsfuerzosNormalesTotalesEfectivosTangenciales",
                               "GráficoResistenciaAlCorteVsEsfuerzoNormal"}) {
      QDialog* diálogo = CrearDiálogoFigura(nullptr, FiguraGráfico(p, nombre));
      Guardar(*diálogo, std::string("diálogo_") + nombre);
      delete diálogo;
    }
  }
  {
    // The search of the critical circle on the sample after "Buscar", and its drawing.
    Proyecto p = muestra;
    InterfazGuionada mudo("N");
    PantallaBúsqueda pantalla(p);
    pantalla.Activar(mudo);
    pantalla.Buscar(mudo);
    VistaPantalla vista(pantalla, mudo);
    Guardar(vista, "búsqueda_tras_buscar");
    if (pantalla.Resultado().hay) {
      QDialog* diálogo = CrearDiálogoFigura(nullptr, FiguraBúsqueda(p, pantalla.Resultado(), false));
      Guardar(*diálogo, "diálogo_BúsquedaCírculoCrítico");
      delete diálogo;
    } else {
      ++fallos;
    }
  }
  {
    // The seismic data screens filled in, and the record they draw.
    Proyecto p = muestra;
    std::vector<FilaRegistro> filas;
    for (int i = 0; i <= 200; ++i) {
      const double t = 0.02 * i;
      filas.push_back({t, 0.3 * std::exp(-0.8 * t) * std::sin(9.0 * t) * std::sin(1.3 * t + 0.4),
                       0.12 * std::exp(-0.9 * t) * std::sin(13.0 * t)});
    }
    GuardarRegistro(p, filas);
    ExportarPNG(FiguraRegistroSísmico(p), QDir(carpeta).filePath("figura_GráficaDeRegistroSísmico.png"), nullptr);
    QDialog* diálogo = CrearDiálogoFigura(nullptr, FiguraRegistroSísmico(p));
    Guardar(*diálogo, "diálogo_GráficaDeRegistroSísmico");
    delete diálogo;
    InterfazGuionada guion("N");
    InterfazQt ui;
    ui.Sustituto(&guion);
    ui.AlMostrar([](VistaPantalla& vista) {
      Guardar(vista, vista.pantalla().nombre + "_con_datos");
      throw Corte{};
    });
    {
      // Modes of a chain of six masses, as the frequencies screen shows them once chosen.
      const long n = 6;
      std::vector<double> K(n * n, 0.0), M(n * n, 0.0), w(n);
      for (long i = 0; i < n; ++i) {
        K[i * n + i] = i + 1 < n ? 2000 : 1000;
        if (i + 1 < n) K[i * n + i + 1] = K[(i + 1) * n + i] = -1000;
        M[i * n + i] = 1;
        w[i] = 5 + 10 * i;
      }
      InterfazGuionada sí("S");
      FormasModales r;
      if (CalcularFormasModales(K, M, n, w, r, sí)) {
        auto& s = p.Sísmico;
        s.NúmeroGradosLibertad = s.NúmeroFrecuencias = n;
        s.Frecuencia.Redimensionar(n);
        s.MatrizFormasModales.Redimensionar(n, n);
        for (long i = 1; i <= n; ++i) {
          s.Frecuencia[i] = r.frecuencias[i - 1];
          for (long m = 1; m <= n; ++m) s.MatrizFormasModales(i, m) = r.formas[(i - 1) * n + m - 1];
        }
        s.ModosCalculados = n;
        s.ModoDeCálculo = 2;
        s.GradosDeLibertadEstimados = s.FormasModalesDadas = s.FrecuenciasDefinitivas = true;
      }
    }
    for (const char* orden : {"InputDeRegistrosSísmico", "CaracterísticasDeLosEstratosParaElCálculoSísmico",
                              "DeterminaciónDeLasFrecuencias"}) {
      if (std::string(orden) == "CaracterísticasDeLosEstratosParaElCálculoSísmico") {
        auto& s = p.Sísmico;
        const long n = p.NúmeroEstratos;
        for (auto* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                        &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
          t->Redimensionar(n);
        s.Determinante.Redimensionar(n);
        for (long e = 1; e <= n; ++e) {
          s.VelocidadOndaCorte[e] = 180 + 40 * e;
          s.DistorsiónCortante[e] = 1e-6;
          s.RelaciónVacíos[e] = 0.55 + 0.05 * e;
          s.ÍndicePlástico[e] = e == 1 ? 0 : 15;
          s.OCR[e] = e == 1 ? 0 : 1;
          s.Determinante[e] = e == n ? 2 : 1;
        }
        s.AlturaPresa = 25;
        s.MétodoGmax = 1;
        s.ParámetrosSísmicosDados = true;
      }
      const auto árbol = ÁrbolDeMenús();
      try {
        if (const EntradaMenú* e = BuscarEntrada(árbol, orden)) EjecutarComando(e->acción, p, ui);
      } catch (const Corte&) {
      }
    }
  }
  {
    // The sample dam up to its modes: the first three mode shapes and the frequencies screen.
    Proyecto p;
    InterfazGuionada lector;
    QString error;
    if (LeerProyecto(p, LOMATERRA_EJEMPLO_PRESA, lector)) {
      InterfazGuionada guion("NSNNSS", true);
      const auto árbol = ÁrbolDeMenús();
      for (const char* orden : {"IncrementeNúmeroDeElementos", "GradosDeLibertad", "DeterminaciónDeLasFrecuencias",
                                "CálculoDeLoVectoresDeFormaModales"})
        if (const EntradaMenú* e = BuscarEntrada(árbol, orden)) EjecutarComando(e->acción, p, guion);
      for (long modo = 1; modo <= 3; ++modo)
        if (DefectoDeLaFormaModal(p, modo).empty() &&
            !ExportarPNG(FiguraFormaModal(p, modo), QDir(carpeta).filePath(Q("figura_FormaModal" + std::to_string(modo)) + ".png"), &error))
          ++fallos;
      if (DefectoDeLaFormaModal(p, 1).empty()) {
        QDialog* diálogo = CrearDiálogoFigura(nullptr, FiguraFormaModal(p, 1));
        Guardar(*diálogo, "diálogo_FormaModal1");
        delete diálogo;
      } else {
        ++fallos;
      }
      p.Sísmico.ModoDeCálculo = 1;
      InterfazGuionada mudo;
      InterfazQt ui;
      ui.Sustituto(&mudo);
      ui.AlMostrar([](VistaPantalla& vista) {
        Guardar(vista, vista.pantalla().nombre + "_presa");
        throw Corte{};
      });
      try {
        if (const EntradaMenú* e = BuscarEntrada(árbol, "DeterminaciónDeLasFrecuencias")) EjecutarComando(e->acción, p, ui);
      } catch (const Corte&) {
      }
    } else {
      ++fallos;
    }
  }
  {
    PantallaDeMuestra pantalla;
    InterfazGuionada mudo;
    VistaPantalla vista(pantalla, mudo);
    Guardar(vista, "vista_genérica");
  }
  std::ofstream transcripción(QDir(carpeta).filePath("transcripcion.txt").toStdString());
  TodasLasPantallas(muestra, transcripción);
  std::printf("%zu imágenes en %s\n", guardadas.size(), carpeta.toUtf8().constData());
  return fallos == 0 && guardadas.count("ventana_principal") ? 0 : 1;
}
