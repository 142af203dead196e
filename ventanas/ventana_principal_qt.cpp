#include "ventana_principal_qt.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <exception>
#include <map>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/factores.h"
#include "vista_seccion.h"

namespace lomaterra {

namespace {

const char* const kSalir = "MenúArchivoSalir";

// Keyboard shortcuts of the common file and help commands.
QKeySequence Atajo(const std::string& nombre) {
  if (nombre == "ArchivoNuevo") return QKeySequence::New;
  if (nombre == "MenúArchivoAbrir") return QKeySequence::Open;
  if (nombre == "MenúArchivoGuardar") return QKeySequence::Save;
  if (nombre == "MenúAyudaContenido") return QKeySequence::HelpContents;
  return QKeySequence();
}

QPushButton* Botón(const char* nombre, const QString& texto, QWidget* padre) {
  auto* b = new QPushButton(texto, padre);
  b->setObjectName(QString::fromUtf8(nombre));
  b->setAutoDefault(false);
  return b;
}

}  // namespace

VentanaPrincipalQt::VentanaPrincipalQt(Proyecto& proyecto, std::vector<EntradaMenú> árbol,
                                       AccionesPanel panel, QWidget* padre)
    : QMainWindow(padre),
      proyecto_(proyecto),
      árbol_(std::move(árbol)),
      panel_(std::move(panel)),
      ui_(this) {
  setObjectName("Form1");
  ConstruirMenús();

  // Description on top, the drawing under it; the panel on the left.
  auto* derecha = new QWidget(this);
  auto* vertical = new QVBoxLayout(derecha);
  vertical->setContentsMargins(4, 4, 4, 4);
  auto* títuloTexto = new QLabel(QStringLiteral("Descripción del proyecto:"), derecha);
  textoProyecto_ = new QPlainTextEdit(derecha);
  textoProyecto_->setObjectName("TextoProyecto");
  textoProyecto_->setFixedHeight(78);
  textoProyecto_->setPlaceholderText(
      QStringLiteral("Escriba aquí una descripción breve del proyecto."));
  títuloTexto->setBuddy(textoProyecto_);
  dibujo_ = new VistaSección(proyecto_, derecha);
  vertical->addWidget(títuloTexto);
  vertical->addWidget(textoProyecto_);
  vertical->addWidget(dibujo_, 1);

  auto* divisor = new QSplitter(Qt::Horizontal, this);
  divisor->setObjectName("Divisor");
  divisor->addWidget(ConstruirPanel());
  divisor->addWidget(derecha);
  divisor->setStretchFactor(0, 0);
  divisor->setStretchFactor(1, 1);
  divisor->setChildrenCollapsible(false);
  divisor->setSizes({300, 880});
  setCentralWidget(divisor);

  líneaEstado_ = new QLabel(this);
  líneaEstado_->setObjectName("LíneaEstado");
  líneaEstado_->setTextFormat(Qt::PlainText);
  statusBar()->addWidget(líneaEstado_, 1);
  ui_.AlEstado([this](const QString& t) { líneaEstado_->setText(t); });
  ui_.AlNombreActual([this] { return Q(proyecto_.Ventana.NombreArchivo); });
  etiquetaFactores_ = new QLabel(this);
  etiquetaFactores_->setObjectName("EtiquetaFactores");
  etiquetaFactores_->setTextFormat(Qt::PlainText);
  statusBar()->addPermanentWidget(etiquetaFactores_);

  connect(textoProyecto_, &QPlainTextEdit::textChanged, this, [this] {
    if (refrescando_) return;
    if (panel_.cambiarTexto) panel_.cambiarTexto(proyecto_, S(textoProyecto_->toPlainText()));
  });

  resize(1180, 760);
  Refrescar();
}

VentanaPrincipalQt::~VentanaPrincipalQt() = default;

void VentanaPrincipalQt::ConstruirMenús() {
  std::map<std::string, QMenu*> menús;
  for (const EntradaMenú& e : árbol_) {
    auto padre = menús.find(e.padre);
    QMenu* contenedor = padre != menús.end() ? padre->second : nullptr;
    if (e.EsSubmenú) {
      QMenu* menú = contenedor ? contenedor->addMenu(Q(e.texto)) : menuBar()->addMenu(Q(e.texto));
      menú->setObjectName(Q(e.nombre));
      menú->menuAction()->setObjectName(Q(e.nombre));
      menús[e.nombre] = menú;
      continue;
    }
    auto* acción = new QAction(Q(e.texto), this);
    acción->setObjectName(Q(e.nombre));
    acción->setEnabled(e.Habilitada());
    acción->setShortcut(Atajo(e.nombre));
    const std::string nombre = e.nombre;
    connect(acción, &QAction::triggered, this, [this, nombre] { EjecutarMenú(nombre); });
    if (contenedor)
      contenedor->addAction(acción);
    else
      menuBar()->addAction(acción);
  }
}

QWidget* VentanaPrincipalQt::ConstruirPanel() {
  auto* panel = new QFrame(this);
  panel->setObjectName("PanelCoordenadas");
  panel->setFrameShape(QFrame::StyledPanel);
  panel->setMinimumWidth(290);
  panel->setMaximumWidth(420);
  auto* vertical = new QVBoxLayout(panel);

  etiquetaCoordenadas_ = new QLabel(panel);
  etiquetaCoordenadas_->setObjectName("EtiquetaCoordenadas");
  etiquetaCoordenadas_->setTextFormat(Qt::PlainText);
  etiquetaCoordenadas_->setStyleSheet("font-weight: bold;");
  etiquetaCoordenadas_->setWordWrap(true);
  vertical->addWidget(etiquetaCoordenadas_);

  listaEstrato_ = new QComboBox(panel);
  listaEstrato_->setObjectName("ListaEstrato");
  vertical->addWidget(listaEstrato_);
  connect(listaEstrato_, &QComboBox::activated, this, [this](int fila) {
    Sincronizar();
    Panel([this, fila](Proyecto& p, Interfaz& ui) {
      if (panel_.elegirEstrato) panel_.elegirEstrato(p, ui, fila);
    });
  });

  listaCoordenadas_ = new QTableWidget(0, 2, panel);
  listaCoordenadas_->setObjectName("ListaCoordenadas");
  listaCoordenadas_->setHorizontalHeaderLabels({"X", "Y"});
  listaCoordenadas_->setSelectionBehavior(QAbstractItemView::SelectRows);
  listaCoordenadas_->setSelectionMode(QAbstractItemView::SingleSelection);
  listaCoordenadas_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  listaCoordenadas_->setAlternatingRowColors(true);
  listaCoordenadas_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  listaCoordenadas_->verticalHeader()->setDefaultSectionSize(22);
  vertical->addWidget(listaCoordenadas_, 1);
  connect(listaCoordenadas_, &QTableWidget::itemSelectionChanged, this, [this] {
    if (refrescando_) return;
    const auto filas = listaCoordenadas_->selectionModel()->selectedRows();
    proyecto_.Ventana.FilaSeleccionada = filas.isEmpty() ? 0 : filas.front().row() + 1;
  });

  auto* formulario = new QFormLayout;
  textoX_ = new QLineEdit(panel);
  textoX_->setObjectName("TextoX");
  textoY_ = new QLineEdit(panel);
  textoY_->setObjectName("TextoY");
  formulario->addRow(QStringLiteral("X (m):"), textoX_);
  formulario->addRow(QStringLiteral("Y (m):"), textoY_);
  vertical->addLayout(formulario);
  connect(textoX_, &QLineEdit::textEdited, this,
          [this](const QString& t) { proyecto_.Ventana.TextoX = TextoDeEntrada(t); });
  connect(textoY_, &QLineEdit::textEdited, this,
          [this](const QString& t) { proyecto_.Ventana.TextoY = TextoDeEntrada(t); });

  auto* botones = new QHBoxLayout;
  QPushButton* agregar = Botón("BotónAgregar", QStringLiteral("Agre&gar"), panel);
  QPushButton* borrar = Botón("BotónBorrar", QStringLiteral("&Borrar"), panel);
  QPushButton* modificar = Botón("BotónModificar", QStringLiteral("&Modificar"), panel);
  botones->addWidget(agregar);
  botones->addWidget(borrar);
  botones->addWidget(modificar);
  vertical->addLayout(botones);
  connect(agregar, &QPushButton::clicked, this, [this] {
    Sincronizar();
    Panel(panel_.agregar);
  });
  connect(borrar, &QPushButton::clicked, this, [this] {
    Sincronizar();
    Panel(panel_.borrar);
  });
  connect(modificar, &QPushButton::clicked, this, [this] {
    Sincronizar();
    Panel(panel_.modificar);
  });
  entradaPanel_ = {textoX_, textoY_, agregar, borrar, modificar};
  // Enter in the Y box adds the point, as the add button does.
  connect(textoY_, &QLineEdit::returnPressed, agregar, &QPushButton::click);
  return panel;
}

void VentanaPrincipalQt::Sincronizar() {
  EstadoVentana& v = proyecto_.Ventana;
  v.TextoX = TextoDeEntrada(textoX_->text());
  v.TextoY = TextoDeEntrada(textoY_->text());
  const auto filas = listaCoordenadas_->selectionModel()->selectedRows();
  v.FilaSeleccionada = filas.isEmpty() ? 0 : filas.front().row() + 1;
}

void VentanaPrincipalQt::Correr(const Acción& acción) {
  try {
    EjecutarComando(acción, proyecto_, ui_);
  } catch (const std::exception& e) {
    // The last net: a fault that the core did not foresee must not take the program down.
    ui_.Mensaje(TextoDeFallo(e.what()), TítuloDeFallo());
  }
  Refrescar();
}

void VentanaPrincipalQt::Panel(const std::function<void(Proyecto&, Interfaz&)>& f) {
  if (!f) return;
  Correr(f);
}

bool VentanaPrincipalQt::EjecutarMenú(const std::string& nombre) {
  const EntradaMenú* e = BuscarEntrada(árbol_, nombre);
  if (!e || !e->acción) return false;
  Sincronizar();
  Correr(e->acción);
  if (proyecto_.Ventana.SalirDelPrograma && !cerrando_) close();
  return true;
}

void VentanaPrincipalQt::closeEvent(QCloseEvent* evento) {
  if (cerrando_ || proyecto_.Ventana.SalirDelPrograma) {
    evento->accept();
    return;
  }
  const EntradaMenú* salir = BuscarEntrada(árbol_, kSalir);
  if (!salir || !salir->acción) {
    evento->accept();
    return;
  }
  cerrando_ = true;
  Sincronizar();
  Correr(salir->acción);
  cerrando_ = false;
  if (proyecto_.Ventana.SalirDelPrograma)
    evento->accept();
  else
    evento->ignore();
}

void VentanaPrincipalQt::Refrescar() {
  refrescando_ = true;
  const EstadoVentana& v = proyecto_.Ventana;
  setWindowTitle(Q(v.Título));
  if (textoProyecto_->toPlainText() != Q(v.TextoProyecto))
    textoProyecto_->setPlainText(Q(v.TextoProyecto));
  etiquetaCoordenadas_->setText(Q(v.EtiquetaCoordenadas));

  QStringList estratos;
  for (const auto& e : v.ListaEstrato) estratos << Q(e);
  QStringList mostrados;
  for (int i = 0; i < listaEstrato_->count(); ++i) mostrados << listaEstrato_->itemText(i);
  if (mostrados != estratos) {
    listaEstrato_->clear();
    listaEstrato_->addItems(estratos);
  }
  if (v.EstratoSeleccionado >= 0 && v.EstratoSeleccionado < listaEstrato_->count())
    listaEstrato_->setCurrentIndex(v.EstratoSeleccionado);

  listaCoordenadas_->clearSelection();
  const auto filas = FilasCoordenadas(v);
  listaCoordenadas_->setRowCount(static_cast<int>(filas.size()));
  for (int r = 0; r < listaCoordenadas_->rowCount(); ++r) {
    const auto& [x, y] = filas[static_cast<std::size_t>(r)];
    int k = 0;
    for (const std::string* valor : {&x, &y}) {
      auto* celda = new QTableWidgetItem(Q(*valor));
      celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      listaCoordenadas_->setItem(r, k++, celda);
    }
  }
  if (v.FilaSeleccionada >= 1 && v.FilaSeleccionada <= listaCoordenadas_->rowCount())
    listaCoordenadas_->selectRow(v.FilaSeleccionada - 1);

  for (QWidget* w : entradaPanel_) w->setEnabled(v.EntradaCoordenadasAbierta);
  if (textoX_->text() != Q(v.TextoX)) textoX_->setText(Q(v.TextoX));
  if (textoY_->text() != Q(v.TextoY)) textoY_->setText(Q(v.TextoY));
  if (v.TextoEstado != últimoEstado_) {
    últimoEstado_ = v.TextoEstado;
    líneaEstado_->setText(Q(v.TextoEstado));
  }
  etiquetaFactores_->setText(Q(LíneaDeFactores(proyecto_)));
  dibujo_->Actualizar();
  if (!dibujo_->Aviso().empty() && dibujo_->Aviso() != últimoAviso_)
    líneaEstado_->setText(Q(dibujo_->Aviso()));
  últimoAviso_ = dibujo_->Aviso();
  refrescando_ = false;
}

}  // namespace lomaterra
