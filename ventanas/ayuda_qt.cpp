#include "ayuda_qt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace lomaterra {

QDialog* CrearVentanaAyuda(const QString& ruta, QWidget* padre) {
  auto* ventana = new QDialog(padre);
  ventana->setObjectName("VentanaAyuda");
  ventana->setWindowTitle(QStringLiteral("Ayuda de Lomaterra"));
  ventana->resize(820, 680);

  auto* texto = new QTextBrowser(ventana);
  texto->setObjectName("TextoAyuda");
  texto->setOpenExternalLinks(true);
  texto->setSearchPaths({QFileInfo(ruta).absolutePath()});
  QFile archivo(ruta);
  QString contenido;
  if (archivo.open(QIODevice::ReadOnly)) contenido = QString::fromUtf8(archivo.readAll());
  if (contenido.trimmed().startsWith('<'))
    texto->setHtml(contenido);
  else
    texto->setPlainText(contenido);

  auto* botones = new QDialogButtonBox(ventana);
  QPushButton* cerrar = botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole);
  cerrar->setObjectName("BotónCerrar");
  QObject::connect(botones, &QDialogButtonBox::rejected, ventana, &QDialog::reject);

  auto* diseño = new QVBoxLayout(ventana);
  diseño->addWidget(texto);
  diseño->addWidget(botones);
  return ventana;
}

}  // namespace lomaterra
