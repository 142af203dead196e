#include "informe_qt.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

#include "pintor.h"
#include "proyecto/compat.h"

namespace lomaterra {

namespace {

QString AQ(const std::string& s) {
  return QString::fromStdString(s);
}

// Fonts in device pixels, from points.
QFont Fuente(const QPaintDevice& d, double puntos, bool negrita = false, bool cursiva = false) {
  QFont f;
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(puntos / 72.0 * d.logicalDpiY()))));
  f.setBold(negrita);
  f.setItalic(cursiva);
  // No ligatures: a PDF reader then finds "fi" and "fl" in the words as they are typed.
  f.setStyleStrategy(QFont::PreferNoShaping);
  return f;
}

constexpr double kPuntosCuerpo = 9.0;
constexpr double kPuntosEncabezado = 7.5;
constexpr double kInterlineado = 1.25;

struct Marco {
  QRectF página;     // the whole writing area of the device
  QRectF cabecera;   // header lines and rule
  QRectF cuerpo;     // the lines that Paginar counts
  QRectF pie;        // page number
  double alto = 1;   // height of a line of body text
  double ancho = 1;  // width of a character of body text
};

Marco Disponer(const QPaintDevice& d, const QRectF& página, std::size_t líneasCabecera) {
  Marco m;
  m.página = página;
  const QFontMetricsF cuerpo(Fuente(d, kPuntosCuerpo), &d);
  const QFontMetricsF cabeza(Fuente(d, kPuntosEncabezado), &d);
  m.alto = cuerpo.lineSpacing() * kInterlineado;
  // A conservative width: Spanish text in a proportional font rarely reaches it.
  m.ancho = cuerpo.averageCharWidth() * 1.12;
  const double altoCabecera = (líneasCabecera + 1) * cabeza.lineSpacing() * 1.15 + m.alto * 0.6;
  const double altoPie = cabeza.lineSpacing() * 2.0;
  m.cabecera = QRectF(página.left(), página.top(), página.width(), altoCabecera);
  m.pie = QRectF(página.left(), página.bottom() - altoPie, página.width(), altoPie);
  m.cuerpo =
      QRectF(página.left(), m.cabecera.bottom(), página.width(), m.pie.top() - m.cabecera.bottom());
  return m;
}

MedidasPágina Medidas(const Marco& m) {
  MedidasPágina r;
  r.líneas = std::max(10, static_cast<int>(std::floor(m.cuerpo.height() / m.alto)));
  r.caracteres = std::max(20, static_cast<int>(std::floor(m.cuerpo.width() / m.ancho)));
  r.líneasFigura = (r.líneas - 4) / 2;
  return r;
}

void Cabecera(QPainter& p, const QPaintDevice& d, const Marco& m, const Informe& inf, int página,
              int páginas) {
  const QFont f = Fuente(d, kPuntosEncabezado);
  const QFont fb = Fuente(d, kPuntosEncabezado, true);
  const QFontMetricsF fm(f, &d);
  const double h = fm.lineSpacing() * 1.15;
  double y = m.cabecera.top();
  p.setPen(Qt::black);
  p.setFont(fb);
  p.drawText(QRectF(m.cabecera.left(), y, m.cabecera.width(), h), Qt::AlignLeft | Qt::AlignVCenter,
             QStringLiteral("Lomaterra - ") + AQ(inf.título));
  p.setFont(f);
  p.drawText(QRectF(m.cabecera.left(), y, m.cabecera.width(), h), Qt::AlignRight | Qt::AlignVCenter,
             QStringLiteral("Página %1 de %2").arg(página).arg(páginas));
  y += h;
  p.setPen(QColor(70, 70, 70));
  for (const auto& l : inf.encabezado) {
    p.drawText(QRectF(m.cabecera.left(), y, m.cabecera.width(), h),
               Qt::AlignLeft | Qt::AlignVCenter,
               fm.elidedText(AQ(l), Qt::ElideRight, m.cabecera.width()));
    y += h;
  }
  p.setPen(QPen(Qt::black, std::max(1.0, d.logicalDpiY() / 150.0)));
  p.drawLine(QPointF(m.cabecera.left(), y + 0.2 * h), QPointF(m.cabecera.right(), y + 0.2 * h));
  // Foot: the page number again, centred.
  p.setPen(QPen(QColor(120, 120, 120), std::max(1.0, d.logicalDpiY() / 300.0)));
  p.drawLine(QPointF(m.pie.left(), m.pie.top() + 0.3 * h),
             QPointF(m.pie.right(), m.pie.top() + 0.3 * h));
  p.setPen(QColor(70, 70, 70));
  p.drawText(QRectF(m.pie.left(), m.pie.top() + 0.4 * h, m.pie.width(), h), Qt::AlignCenter,
             QStringLiteral("- %1 -").arg(página));
}

// The columns of a table laid over the body width: x of each column and the font scale.
struct Columnas {
  std::vector<double> x, ancho;
  double escala = 1;
};

Columnas ColumnasDeTabla(const TablaDeTexto& t, const Marco& m, int caracteres) {
  Columnas c;
  const auto anchos = AnchosDeColumnas(t, caracteres);
  int total = 0;
  for (int w : anchos) total += w;
  c.escala = total > caracteres ? static_cast<double>(caracteres) / total : 1.0;
  double x = m.cuerpo.left();
  for (int w : anchos) {
    c.x.push_back(x);
    c.ancho.push_back(w * m.ancho * c.escala);
    x += c.ancho.back();
  }
  return c;
}

void EncabezadoDeTabla(QPainter& p, const QPaintDevice& d, const Marco& m, const TablaDeTexto& t,
                       const std::string& título, int caracteres, double y, int líneas) {
  const Columnas c = ColumnasDeTabla(t, m, caracteres);
  const auto anchos = AnchosDeColumnas(t, caracteres);
  p.setFont(Fuente(d, kPuntosCuerpo, true, true));
  p.setPen(Qt::black);
  p.drawText(QRectF(m.cuerpo.left(), y, m.cuerpo.width(), m.alto), Qt::AlignLeft | Qt::AlignVCenter,
             AQ(título));
  y += m.alto;
  const double alto = (líneas - 1) * m.alto;
  const double derecha = c.x.back() + c.ancho.back();
  p.fillRect(QRectF(m.cuerpo.left(), y, derecha - m.cuerpo.left(), alto), QColor(225, 232, 240));
  const double puntos = kPuntosCuerpo * c.escala;
  for (std::size_t j = 0; j < t.columnas.size(); ++j) {
    const auto partes = PartirTexto(t.columnas[j], anchos[j] - 1);
    QString texto;
    for (std::size_t k = 0; k < partes.size(); ++k) texto += (k ? "\n" : "") + AQ(partes[k]);
    // A long word in bold can outgrow a column sized by characters: its caption gets smaller
    // rather than spill into the next one.
    const double disponible = c.ancho[j] - 0.6 * m.ancho;
    const QFontMetricsF fm(Fuente(d, puntos, true), &d);
    double mayor = 0;
    for (const auto& parte : partes) mayor = std::max(mayor, fm.horizontalAdvance(AQ(parte)));
    p.setFont(Fuente(d, mayor > disponible ? puntos * disponible / mayor : puntos, true));
    p.drawText(QRectF(c.x[j] + 0.3 * m.ancho, y, disponible, alto), Qt::AlignCenter, texto);
  }
  p.setPen(QPen(QColor(90, 90, 90), std::max(1.0, d.logicalDpiY() / 300.0)));
  p.drawLine(QPointF(m.cuerpo.left(), y), QPointF(derecha, y));
  p.drawLine(QPointF(m.cuerpo.left(), y + alto), QPointF(derecha, y + alto));
}

void FilaDeTabla(QPainter& p, const QPaintDevice& d, const Marco& m, const TablaDeTexto& t,
                 long fila, int caracteres, double y) {
  const Columnas c = ColumnasDeTabla(t, m, caracteres);
  const double derecha = c.x.back() + c.ancho.back();
  if (fila % 2 == 1)
    p.fillRect(QRectF(m.cuerpo.left(), y, derecha - m.cuerpo.left(), m.alto),
               QColor(245, 245, 245));
  p.setFont(Fuente(d, kPuntosCuerpo * c.escala));
  p.setPen(Qt::black);
  const auto& celdas = t.filas[static_cast<std::size_t>(fila)];
  for (std::size_t j = 0; j < celdas.size() && j < c.x.size(); ++j) {
    // Numbers to the right, words to the left.
    const Qt::Alignment a = EsNúmero(celdas[j]) ? Qt::AlignRight : Qt::AlignLeft;
    p.drawText(QRectF(c.x[j] + 0.5 * m.ancho, y, c.ancho[j] - m.ancho, m.alto),
               a | Qt::AlignVCenter, AQ(celdas[j]));
  }
  // The last row of the table, or of its part on this page, closes with a rule.
  p.setPen(QPen(QColor(200, 200, 200), std::max(1.0, d.logicalDpiY() / 400.0)));
  p.drawLine(QPointF(m.cuerpo.left(), y + m.alto), QPointF(derecha, y + m.alto));
}

}  // namespace

MedidasPágina MedidasDelDispositivo(const QPaintDevice& dispositivo, const QRectF& área) {
  return Medidas(Disponer(dispositivo, área, 3));
}

int PintarInforme(const Informe& inf, QPagedPaintDevice& d, QPainter& p) {
  const QRectF página(0, 0, d.width(), d.height());
  const Marco m = Disponer(d, página, inf.encabezado.size());
  const MedidasPágina medidas = Medidas(m);
  const auto páginas = Paginar(inf, medidas);
  const int total = static_cast<int>(páginas.size());
  p.setRenderHint(QPainter::Antialiasing, true);
  p.setRenderHint(QPainter::TextAntialiasing, true);
  for (int k = 0; k < total; ++k) {
    if (k > 0) d.newPage();
    Cabecera(p, d, m, inf, k + 1, total);
    double y = m.cuerpo.top();
    for (const auto& e : páginas[static_cast<std::size_t>(k)].elementos) {
      const double alto = e.líneas * m.alto;
      using E = ElementoPágina::Tipo;
      switch (e.tipo) {
        case E::Título:
          p.setFont(Fuente(d, 15, true));
          p.setPen(QColor(20, 40, 90));
          p.drawText(QRectF(m.cuerpo.left(), y, m.cuerpo.width(), 2 * m.alto), Qt::AlignCenter,
                     AQ(e.texto));
          break;
        case E::Subtítulo:
          p.setFont(Fuente(d, 11, true));
          p.setPen(QColor(20, 40, 90));
          p.drawText(QRectF(m.cuerpo.left(), y + 0.4 * m.alto, m.cuerpo.width(), 1.4 * m.alto),
                     Qt::AlignLeft | Qt::AlignVCenter, AQ(e.texto));
          p.setPen(QPen(QColor(20, 40, 90), std::max(1.0, d.logicalDpiY() / 200.0)));
          p.drawLine(QPointF(m.cuerpo.left(), y + 1.85 * m.alto),
                     QPointF(m.cuerpo.right(), y + 1.85 * m.alto));
          break;
        case E::Línea:
          p.setFont(Fuente(d, kPuntosCuerpo));
          p.setPen(Qt::black);
          p.drawText(QRectF(m.cuerpo.left(), y, m.cuerpo.width(), m.alto),
                     Qt::AlignLeft | Qt::AlignVCenter, AQ(e.texto));
          break;
        case E::EncabezadoTabla:
          EncabezadoDeTabla(p, d, m, inf.bloques[e.bloque].tabla, e.texto, medidas.caracteres, y,
                            e.líneas);
          break;
        case E::FilaTabla:
          FilaDeTabla(p, d, m, inf.bloques[e.bloque].tabla, e.fila, medidas.caracteres, y);
          break;
        case E::Figura: {
          const QRectF r(m.cuerpo.left(), y, m.cuerpo.width(), alto);
          DibujarFigura(p, inf.bloques[e.bloque].figura, r);
          p.setPen(QPen(QColor(160, 160, 160), std::max(1.0, d.logicalDpiY() / 300.0)));
          p.drawRect(r);
          break;
        }
        case E::Espacio:
          break;
      }
      y += alto;
    }
  }
  return total;
}

bool EscribirInformePDF(const Informe& informe, const QString& ruta, QString* error, int* páginas) {
  QSaveFile archivo(ruta);
  if (!archivo.open(QIODevice::WriteOnly)) {
    if (error)
      *error =
          QStringLiteral("No se pudo escribir el archivo %1: %2").arg(ruta, archivo.errorString());
    return false;
  }
  int n = 0;
  {
    QPdfWriter pdf(&archivo);
    pdf.setResolution(300);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                  QMarginsF(18, 15, 15, 15), QPageLayout::Millimeter));
    pdf.setTitle(AQ(informe.título));
    pdf.setCreator(QStringLiteral("Lomaterra"));
    QPainter p;
    if (!p.begin(&pdf)) {
      archivo.cancelWriting();
      if (error) *error = QStringLiteral("No se pudo preparar el archivo PDF %1.").arg(ruta);
      return false;
    }
    n = PintarInforme(informe, pdf, p);
    p.end();
  }
  if (!archivo.commit()) {
    if (error)
      *error = QStringLiteral("No se pudo terminar de escribir el archivo %1: %2")
                   .arg(ruta, archivo.errorString());
    return false;
  }
  if (páginas) *páginas = n;
  return true;
}

}  // namespace lomaterra
