#include "vista_pantalla.h"

#include <QFontMetrics>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpacerItem>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "interfaz_qt.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"

namespace lomaterra {

namespace {

// Fields beyond this count are laid out in two columns, and beyond twice as many in three.
constexpr std::size_t kCamposPorColumna = 10;
// Tables of more columns than this size their columns to the contents and may scroll sideways.
constexpr int kColumnasAjustadas = 9;

const char* kEstiloSoloLectura =
    "QLineEdit[readOnly=\"true\"] { background: #ececec; color: #505050; }";

}  // namespace

VistaPantalla::VistaPantalla(Pantalla& pantalla, Interfaz& ui, QWidget* padre)
    : QDialog(padre), pantalla_(pantalla), ui_(ui) {
  setObjectName(Q(pantalla.nombre));
  setModal(true);
  setSizeGripEnabled(true);
  setStyleSheet(kEstiloSoloLectura);
  diseño_ = new QVBoxLayout(this);
  diseño_->setContentsMargins(14, 12, 14, 12);
  anchoTítulo_ = new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
  diseño_->addSpacerItem(anchoTítulo_);
  Construir();
  Refrescar();
}

std::string VistaPantalla::Firma() const {
  std::string f;
  for (const auto& c : pantalla_.campos) f += "c:" + c.nombre + "\n";
  for (const auto& l : pantalla_.listas) {
    f += "l:" + l.nombre;
    for (const auto& col : l.columnas) f += "|" + col;
    f += "\n";
  }
  for (const auto& b : pantalla_.botones) f += "b:" + b.nombre + "\n";
  return f;
}

void VistaPantalla::Construir() {
  if (cuerpo_) {
    diseño_->removeWidget(cuerpo_);
    // Out of sight at once: the old body is only deleted when the event loop comes round again.
    cuerpo_->hide();
    cuerpo_->deleteLater();
  }
  cajas_.clear();
  etiquetas_.clear();
  tablas_.clear();
  filasMostradas_.clear();
  botones_.clear();
  firma_ = Firma();

  cuerpo_ = new QWidget(this);
  auto* vertical = new QVBoxLayout(cuerpo_);
  vertical->setContentsMargins(0, 0, 0, 0);
  vertical->setSpacing(10);

  nota_ = new QLabel(cuerpo_);
  nota_->setObjectName("Nota");
  nota_->setWordWrap(true);
  nota_->setTextFormat(Qt::PlainText);
  nota_->setFrameShape(QFrame::StyledPanel);
  nota_->setStyleSheet(
      "QLabel#Nota { background: #f4f1e6; border: 1px solid #c9c2a8; padding: 6px; }");
  nota_->setMinimumWidth(420);
  vertical->addWidget(nota_);

  // Fields: a form, in two columns when there are many.
  const std::size_t n = pantalla_.campos.size();
  if (n > 0) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(24);
    const std::size_t columnas =
        std::min<std::size_t>(3, (n + kCamposPorColumna - 1) / kCamposPorColumna);
    const std::size_t porColumna = (n + columnas - 1) / columnas;
    QFormLayout* formulario = nullptr;
    for (std::size_t i = 0; i < n; ++i) {
      if (i % porColumna == 0) {
        formulario = new QFormLayout;
        formulario->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        formulario->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        formulario->setVerticalSpacing(6);
        fila->addLayout(formulario);
      }
      const Campo& c = pantalla_.campos[i];
      auto* caja = new QLineEdit(cuerpo_);
      caja->setObjectName(Q(c.nombre));
      caja->setMinimumWidth(150);
      caja->setMaximumWidth(320);
      auto* etiqueta = new QLabel(cuerpo_);
      etiqueta->setObjectName(Q("Etiqueta:" + c.nombre));
      etiqueta->setBuddy(caja);
      etiqueta->setWordWrap(false);
      etiqueta->setTextFormat(
          Qt::PlainText);  // captions such as "Suelo o roca <S>:" are not markup
      formulario->addRow(etiqueta, caja);
      cajas_.push_back(caja);
      etiquetas_.push_back(etiqueta);
    }
    fila->addStretch(1);
    vertical->addLayout(fila);
  }

  // Lists: tables with their column captions; a row click selects the row.
  for (std::size_t l = 0; l < pantalla_.listas.size(); ++l) {
    const ListaPantalla& lista = pantalla_.listas[l];
    auto* tabla = new QTableWidget(cuerpo_);
    tabla->setObjectName(Q(lista.nombre));
    tabla->setColumnCount(static_cast<int>(lista.columnas.size()));
    QStringList títulos;
    for (const auto& col : lista.columnas) títulos << Q(col).trimmed();
    tabla->setHorizontalHeaderLabels(títulos);
    tabla->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabla->setSelectionMode(QAbstractItemView::SingleSelection);
    tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla->setAlternatingRowColors(true);
    tabla->verticalHeader()->setVisible(false);
    tabla->verticalHeader()->setDefaultSectionSize(22);
    tabla->horizontalHeader()->setMinimumSectionSize(70);
    tabla->setMinimumHeight(220);
    // Wide enough for every column caption in full.
    const QFontMetrics letras(tabla->horizontalHeader()->font());
    int ancho = 24 + tabla->verticalScrollBar()->sizeHint().width();
    for (const QString& t : títulos) ancho += std::max(80, letras.horizontalAdvance(t) + 28);
    if (tabla->columnCount() > kColumnasAjustadas) {
      tabla->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
      tabla->horizontalHeader()->setStretchLastSection(true);
      tabla->setMinimumWidth(std::min(ancho, 1000));
    } else {
      tabla->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
      tabla->setMinimumWidth(std::max(360, ancho));
    }
    connect(tabla, &QTableWidget::itemSelectionChanged, this, [this, l, tabla] {
      if (refrescando_) return;
      const auto elegidas = tabla->selectionModel()->selectedRows();
      Seleccionar(l, elegidas.isEmpty() ? 0 : elegidas.front().row() + 1);
    });
    vertical->addWidget(tabla, 1);
    tablas_.push_back(tabla);
    filasMostradas_.emplace_back();
  }

  // Buttons in a row at the foot, on the right.
  if (!pantalla_.botones.empty()) {
    auto* línea = new QFrame(cuerpo_);
    línea->setFrameShape(QFrame::HLine);
    línea->setFrameShadow(QFrame::Sunken);
    vertical->addWidget(línea);
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    for (const auto& b : pantalla_.botones) {
      auto* botón = new QPushButton(cuerpo_);
      botón->setObjectName(Q(b.nombre));
      botón->setAutoDefault(false);
      const std::string nombre = b.nombre;
      connect(botón, &QPushButton::clicked, this, [this, nombre] { Pulsar(nombre); });
      fila->addWidget(botón);
      botones_.push_back(botón);
    }
    vertical->addLayout(fila);
  }
  diseño_->addWidget(cuerpo_);
}

void VistaPantalla::Recoger() {
  for (std::size_t i = 0; i < cajas_.size() && i < pantalla_.campos.size(); ++i)
    if (!cajas_[i]->isReadOnly()) pantalla_.campos[i].valor = TextoDeEntrada(cajas_[i]->text());
  for (std::size_t l = 0; l < tablas_.size() && l < pantalla_.listas.size(); ++l) {
    const auto elegidas = tablas_[l]->selectionModel()->selectedRows();
    pantalla_.listas[l].seleccionada = elegidas.isEmpty() ? 0 : elegidas.front().row() + 1;
  }
}

void VistaPantalla::Refrescar() {
  if (Firma() != firma_) Construir();
  refrescando_ = true;
  setWindowTitle(InterfazQt::TítuloDeCaja(pantalla_.título));
  // Room for the whole title on the window's bar.
  anchoTítulo_->changeSize(std::min(900, fontMetrics().horizontalAdvance(windowTitle()) + 120), 0,
                           QSizePolicy::Fixed, QSizePolicy::Fixed);
  diseño_->invalidate();
  nota_->setText(Q(pantalla_.nota));
  nota_->setVisible(!pantalla_.nota.empty());

  for (std::size_t i = 0; i < cajas_.size(); ++i) {
    const Campo& c = pantalla_.campos[i];
    QLineEdit* caja = cajas_[i];
    if (caja->text() != Q(c.valor)) caja->setText(Q(c.valor));
    caja->setReadOnly(c.soloLectura);
    caja->setFocusPolicy(c.soloLectura ? Qt::ClickFocus : Qt::StrongFocus);
    caja->setToolTip(Q(c.ayuda));
    caja->style()->unpolish(caja);
    caja->style()->polish(caja);
    etiquetas_[i]->setText(Q(c.etiqueta.empty() ? c.nombre : c.etiqueta));
    etiquetas_[i]->setToolTip(Q(c.ayuda));
  }

  for (std::size_t l = 0; l < tablas_.size(); ++l) {
    const ListaPantalla& lista = pantalla_.listas[l];
    QTableWidget* tabla = tablas_[l];
    if (filasMostradas_[l] != lista.filas) {
      tabla->clearSelection();
      tabla->setRowCount(static_cast<int>(lista.filas.size()));
      for (int r = 0; r < tabla->rowCount(); ++r) {
        const auto& fila = lista.filas[static_cast<std::size_t>(r)];
        for (int k = 0; k < tabla->columnCount(); ++k) {
          const std::string valor =
              k < static_cast<int>(fila.size()) ? fila[static_cast<std::size_t>(k)] : std::string();
          auto* celda = new QTableWidgetItem(Q(valor));
          celda->setTextAlignment((EsNúmero(valor) ? Qt::AlignRight : Qt::AlignLeft) |
                                  Qt::AlignVCenter);
          tabla->setItem(r, k, celda);
        }
      }
      filasMostradas_[l] = lista.filas;
    }
    const auto elegidas = tabla->selectionModel()->selectedRows();
    const int mostrada = elegidas.isEmpty() ? 0 : elegidas.front().row() + 1;
    if (mostrada != lista.seleccionada) {
      tabla->clearSelection();
      if (lista.seleccionada >= 1 && lista.seleccionada <= tabla->rowCount())
        tabla->selectRow(lista.seleccionada - 1);
    }
  }

  for (std::size_t b = 0; b < botones_.size(); ++b) {
    QPushButton* botón = botones_[b];
    botón->setText(Q(pantalla_.botones[b].texto));
    botón->setMinimumWidth(std::max(96, botón->sizeHint().width()));
  }
  refrescando_ = false;
}

template <class F>
void VistaPantalla::Ejecutar(F&& f) {
  if (fallo_) return;
  try {
    f();
  } catch (...) {
    // The fault ends the command that opened this screen: close, and let the caller rethrow.
    fallo_ = std::current_exception();
    pantalla_.cerrada = true;
    QDialog::done(QDialog::Rejected);
  }
}

void VistaPantalla::CerrarSiCorresponde() {
  if (fallo_) return;
  Refrescar();
  if (pantalla_.cerrada) QDialog::done(QDialog::Accepted);
}

void VistaPantalla::Pulsar(const std::string& nombre) {
  Recoger();
  Ejecutar([&] { pantalla_.Pulsar(nombre, ui_); });
  CerrarSiCorresponde();
}

void VistaPantalla::Seleccionar(std::size_t l, int fila) {
  Recoger();
  ListaPantalla& lista = pantalla_.listas[l];
  lista.seleccionada = fila;
  if (lista.alSeleccionar) Ejecutar([&] { lista.alSeleccionar(ui_); });
  CerrarSiCorresponde();
}

void VistaPantalla::reject() {
  if (pantalla_.cerrada || fallo_) {
    QDialog::reject();
    return;
  }
  Recoger();
  Ejecutar([&] { pantalla_.CerrarSinCambios(ui_); });
  if (fallo_) return;
  Refrescar();
  if (pantalla_.cerrada) QDialog::reject();
}

}  // namespace lomaterra
