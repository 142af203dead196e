#include "pintor.h"

#include <QFileInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainterPath>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace lomaterra {

namespace {

QColor AColor(const Color& c) {
  return QColor(c.r, c.g, c.b);
}
QString AQ(const std::string& s) {
  return QString::fromStdString(s);
}

// A step of 1, 2 or 5 times a power of ten near `bruto`.
double PasoRedondo(double bruto) {
  if (!(bruto > 0) || !std::isfinite(bruto)) return 1.0;
  const double e = std::pow(10.0, std::floor(std::log10(bruto)));
  const double f = bruto / e;
  return (f < 1.5 ? 1.0 : f < 3.5 ? 2.0 : f < 7.5 ? 5.0 : 10.0) * e;
}

std::vector<double> Marcas(double a, double b, double paso) {
  std::vector<double> r;
  if (!(paso > 0) || !(b > a)) return r;
  const double inicio = std::ceil(a / paso - 1e-9) * paso;
  for (double v = inicio; v <= b + paso * 1e-9 && r.size() < 200; v += paso)
    r.push_back(std::abs(v) < paso * 1e-9 ? 0.0 : v);
  return r;
}

QString TextoMarca(double v, double paso) {
  const int decimales =
      paso >= 1 ? 0 : std::min(6, static_cast<int>(std::ceil(-std::log10(paso) - 1e-9)));
  return QString::number(v, 'f', decimales);
}

struct EntradaLeyenda {
  QString texto;
  const Trazo* trazo;
};

// Where every part of a figure goes inside the rectangle.
struct Disposición {
  double u = 1;  // device pixels per screen pixel
  double s = 1;  // growth of text and lines with the size of the rectangle
  QFont fTítulo, fNota, fEje, fMarca, fLeyenda, fRótulo;
  QRectF marco, área;
  double x0 = 0, x1 = 1, y0 = 0, y1 = 1;
  double pasoX = 1, pasoY = 1;
  std::vector<double> marcasX, marcasY;
  std::vector<EntradaLeyenda> leyenda;
  std::vector<std::vector<std::size_t>> filasLeyenda;
  double altoLeyenda = 0, altoFilaLeyenda = 0, altoTítulo = 0, altoNota = 0;

  QPointF A(double x, double y) const {
    return {área.left() + (x - x0) / (x1 - x0) * área.width(),
            área.bottom() - (y - y0) / (y1 - y0) * área.height()};
  }
  QPointF A(const PuntoFigura& q) const { return A(q.x, q.y); }
  double Px(double pixeles) const { return pixeles * u * s; }
};

QFont Fuente(double puntos, const Disposición& d, bool negrita = false) {
  QFont f;
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(puntos * 4.0 / 3.0 * d.u * d.s))));
  f.setBold(negrita);
  // No ligatures: a PDF reader then finds "fi" and "fl" in the words as they are typed.
  f.setStyleStrategy(QFont::PreferNoShaping);
  return f;
}

QFontMetricsF Métrica(const QFont& f, const QPaintDevice* dispositivo) {
  return dispositivo ? QFontMetricsF(f, dispositivo) : QFontMetricsF(f);
}

Disposición Disponer(const Figura& fig, const QRectF& marco, const QPaintDevice* dispositivo) {
  Disposición d;
  d.marco = marco;
  if (dispositivo) d.u = std::max(1.0, dispositivo->logicalDpiX() / 96.0);
  d.s =
      std::clamp(std::min(marco.width() / (d.u * 900.0), marco.height() / (d.u * 620.0)), 0.7, 1.8);
  d.fTítulo = Fuente(12, d, true);
  d.fNota = Fuente(9, d);
  d.fEje = Fuente(9.5, d);
  d.fMarca = Fuente(8, d);
  d.fLeyenda = Fuente(8.5, d);
  const QFontMetricsF mTítulo = Métrica(d.fTítulo, dispositivo),
                      mNota = Métrica(d.fNota, dispositivo), mEje = Métrica(d.fEje, dispositivo),
                      mMarca = Métrica(d.fMarca, dispositivo),
                      mLeyenda = Métrica(d.fLeyenda, dispositivo);
  const double margen = d.Px(8);

  // Range of the data.
  double x0 = std::numeric_limits<double>::max(), x1 = -x0, y0 = x0, y1 = -x0;
  auto incluir = [&](const PuntoFigura& q) {
    if (!std::isfinite(q.x) || !std::isfinite(q.y)) return;
    x0 = std::min(x0, q.x);
    x1 = std::max(x1, q.x);
    y0 = std::min(y0, q.y);
    y1 = std::max(y1, q.y);
  };
  for (const auto& t : fig.trazos)
    for (const auto& q : t.puntos) incluir(q);
  for (const auto& m : fig.marcas) incluir(m.punto);
  for (const auto& f : fig.flechas) {
    incluir(f.desde);
    incluir(f.hasta);
  }
  for (const auto& r : fig.rótulos) incluir(r.punto);
  if (x1 < x0) {
    x0 = 0;
    x1 = 1;
    y0 = 0;
    y1 = 1;
  }
  const bool gráfico = fig.tipo == Figura::Tipo::Gráfico;
  if (gráfico) {
    y0 = std::min(y0, 0.0);
    y1 = std::max(y1, 0.0);
  }
  if (x1 - x0 <= 0) {
    x0 -= 1;
    x1 += 1;
  }
  if (y1 - y0 <= 0) {
    y0 -= 1;
    y1 += 1;
  }
  const double hx = 0.05 * (x1 - x0), hy = 0.06 * (y1 - y0);
  x0 -= hx;
  x1 += hx;
  y0 -= hy;
  y1 += hy;

  // Legend entries, once each caption.
  for (const auto& t : fig.trazos) {
    if (t.leyenda.empty()) continue;
    const QString texto = AQ(t.leyenda);
    if (std::none_of(d.leyenda.begin(), d.leyenda.end(),
                     [&](const EntradaLeyenda& e) { return e.texto == texto; }))
      d.leyenda.push_back({texto, &t});
  }
  const double muestra = d.Px(26), separación = d.Px(18);
  const double anchoDisponible = marco.width() - 2 * margen;
  d.altoFilaLeyenda = mLeyenda.height() * 1.35;
  {
    std::vector<std::size_t> fila;
    double ancho = 0;
    for (std::size_t k = 0; k < d.leyenda.size(); ++k) {
      const double w =
          muestra + d.Px(5) + mLeyenda.horizontalAdvance(d.leyenda[k].texto) + separación;
      if (!fila.empty() && ancho + w > anchoDisponible) {
        d.filasLeyenda.push_back(fila);
        fila.clear();
        ancho = 0;
      }
      fila.push_back(k);
      ancho += w;
    }
    if (!fila.empty()) d.filasLeyenda.push_back(fila);
  }
  d.altoLeyenda = d.filasLeyenda.size() * d.altoFilaLeyenda;

  d.altoTítulo = fig.título.empty() ? 0 : mTítulo.height() * 1.3;
  d.altoNota = mNota.height() * 1.2;
  const double arriba = margen + d.altoTítulo + fig.notas.size() * d.altoNota + d.Px(6);
  const double abajo = margen + d.altoLeyenda + (fig.ejeX.empty() ? 0 : mEje.height() * 1.3) +
                       mMarca.height() * 1.4 + d.Px(4);

  // Width of the tick labels on the vertical axis, from a first guess of the ticks.
  const double altoPrevio = std::max(10.0, marco.height() - arriba - abajo);
  const double pasoPrevio = PasoRedondo((y1 - y0) / std::max(2.0, altoPrevio / d.Px(55)));
  double anchoMarcas = 0;
  for (double v : Marcas(y0 - (y1 - y0), y1 + (y1 - y0), pasoPrevio))
    anchoMarcas = std::max(anchoMarcas, mMarca.horizontalAdvance(TextoMarca(v, pasoPrevio)));
  const double izquierda =
      margen + (fig.ejeY.empty() ? 0 : mEje.height() * 1.4) + anchoMarcas + d.Px(6);
  const double derecha = margen + d.Px(10);
  d.área = QRectF(marco.left() + izquierda, marco.top() + arriba,
                  std::max(10.0, marco.width() - izquierda - derecha),
                  std::max(10.0, marco.height() - arriba - abajo));

  if (!gráfico) {
    // Equal scales: the axis with room to spare shows more of the plane, centred on the data.
    const double escala = std::min(d.área.width() / (x1 - x0), d.área.height() / (y1 - y0));
    const double cx = 0.5 * (x0 + x1), cy = 0.5 * (y0 + y1);
    const double mx = 0.5 * d.área.width() / escala, my = 0.5 * d.área.height() / escala;
    x0 = cx - mx;
    x1 = cx + mx;
    y0 = cy - my;
    y1 = cy + my;
  }
  d.x0 = x0;
  d.x1 = x1;
  d.y0 = y0;
  d.y1 = y1;
  d.pasoX = PasoRedondo((x1 - x0) / std::max(2.0, d.área.width() / d.Px(90)));
  d.pasoY = PasoRedondo((y1 - y0) / std::max(2.0, d.área.height() / d.Px(55)));
  if (!gráfico) d.pasoX = d.pasoY = std::max(d.pasoX, d.pasoY);
  d.marcasX = Marcas(x0, x1, d.pasoX);
  d.marcasY = Marcas(y0, y1, d.pasoY);
  return d;
}

void DibujarMarcador(QPainter& p, QPointF c, const std::string& forma, double lado,
                     const QColor& color, double grosor) {
  const double r = lado / 2;
  p.setPen(QPen(color, grosor));
  if (forma == "cruz") {
    p.drawLine(QPointF(c.x() - r, c.y()), QPointF(c.x() + r, c.y()));
    p.drawLine(QPointF(c.x(), c.y() - r), QPointF(c.x(), c.y() + r));
    return;
  }
  p.setBrush(color);
  if (forma == "cuadrado") {
    p.drawRect(QRectF(c.x() - r, c.y() - r, lado, lado));
  } else if (forma == "triángulo") {
    // Pointing down, as the sign of a water level.
    const QPointF v[3] = {{c.x() - r, c.y() - r}, {c.x() + r, c.y() - r}, {c.x(), c.y() + r * 0.6}};
    p.drawPolygon(v, 3);
  } else {
    p.drawEllipse(c, r, r);
  }
  p.setBrush(Qt::NoBrush);
}

void DibujarFlecha(QPainter& p, QPointF a, QPointF b, const QColor& color, double grosor,
                   double cabeza) {
  const double dx = b.x() - a.x(), dy = b.y() - a.y();
  const double l = std::hypot(dx, dy);
  p.setPen(QPen(color, grosor, Qt::SolidLine, Qt::RoundCap));
  if (l <= 0) return;
  const double ux = dx / l, uy = dy / l;
  const double largo = std::min(cabeza, 0.6 * l), ancho = 0.45 * largo;
  const QPointF base(b.x() - ux * largo, b.y() - uy * largo);
  p.drawLine(a, base);
  const QPointF v[3] = {b,
                        {base.x() - uy * ancho, base.y() + ux * ancho},
                        {base.x() + uy * ancho, base.y() - ux * ancho}};
  p.setBrush(color);
  p.setPen(QPen(color, 1));
  p.drawPolygon(v, 3);
  p.setBrush(Qt::NoBrush);
}

QPen PlumaDeTrazo(const Trazo& t, const Disposición& d) {
  QPen pluma(AColor(t.color), std::max(0.5, t.grosor * d.u * d.s));
  pluma.setStyle(t.discontinuo ? Qt::DashLine : Qt::SolidLine);
  pluma.setCapStyle(Qt::RoundCap);
  pluma.setJoinStyle(Qt::RoundJoin);
  return pluma;
}

void DibujarTrazo(QPainter& p, const Trazo& t, const Disposición& d) {
  if (t.puntos.empty()) return;
  QPolygonF poligonal;
  for (const auto& q : t.puntos)
    if (std::isfinite(q.x) && std::isfinite(q.y)) poligonal << d.A(q);
  if (!t.sinLínea) {
    p.setPen(PlumaDeTrazo(t, d));
    if (t.relleno) {
      p.setBrush(AColor(t.colorRelleno));
      p.drawPolygon(poligonal);
      p.setBrush(Qt::NoBrush);
    } else if (t.cerrado) {
      p.drawPolygon(poligonal);
    } else {
      p.drawPolyline(poligonal);
    }
  }
  if (!t.marcador.empty())
    for (const auto& q : poligonal)
      DibujarMarcador(p, q, t.marcador, d.Px(6), AColor(t.color), d.Px(1));
}

}  // namespace

void DibujarFigura(QPainter& p, const Figura& fig, const QRectF& marco) {
  const Disposición d = Disponer(fig, marco, p.device());
  const bool gráfico = fig.tipo == Figura::Tipo::Gráfico;
  p.save();
  p.setRenderHint(QPainter::Antialiasing, true);
  p.setRenderHint(QPainter::TextAntialiasing, true);
  p.fillRect(marco, Qt::white);

  // Title and notes.
  double y = marco.top() + d.Px(8);
  p.setPen(Qt::black);
  if (!fig.título.empty()) {
    p.setFont(d.fTítulo);
    const QFontMetricsF mTítulo(d.fTítulo, p.device());
    p.drawText(QRectF(marco.left(), y, marco.width(), d.altoTítulo), Qt::AlignCenter,
               mTítulo.elidedText(AQ(fig.título), Qt::ElideRight, marco.width() - d.Px(16)));
    y += d.altoTítulo;
  }
  p.setFont(d.fNota);
  p.setPen(QColor(60, 60, 60));
  const QFontMetricsF mNota(d.fNota, p.device());
  for (const auto& n : fig.notas) {
    // A long description is cut with an ellipsis rather than spill out of the rectangle.
    const QString nota = mNota.elidedText(AQ(n), Qt::ElideRight, marco.width() - d.Px(16));
    p.drawText(QRectF(marco.left(), y, marco.width(), d.altoNota), Qt::AlignCenter, nota);
    y += d.altoNota;
  }

  // Grid.
  QPen rejilla(gráfico ? QColor(215, 215, 215) : QColor(230, 230, 230), std::max(0.5, 0.8 * d.u));
  rejilla.setStyle(gráfico ? Qt::SolidLine : Qt::DotLine);
  p.setPen(rejilla);
  for (double v : d.marcasX) p.drawLine(d.A(v, d.y0), d.A(v, d.y1));
  for (double v : d.marcasY) p.drawLine(d.A(d.x0, v), d.A(d.x1, v));
  if (gráfico && d.y0 < 0 && d.y1 > 0) {
    p.setPen(QPen(QColor(120, 120, 120), std::max(0.5, d.u)));
    p.drawLine(d.A(d.x0, 0), d.A(d.x1, 0));
  }

  // Data, clipped to the plotting area.
  p.save();
  p.setClipRect(d.área);
  for (const auto& t : fig.trazos) DibujarTrazo(p, t, d);
  for (const auto& f : fig.flechas)
    DibujarFlecha(p, d.A(f.desde), d.A(f.hasta), AColor(f.color),
                  std::max(0.5, f.grosor * d.u * d.s), d.Px(9));
  for (const auto& m : fig.marcas)
    DibujarMarcador(p, d.A(m.punto), m.forma, m.tamaño * d.u * d.s, AColor(m.color), d.Px(1.5));
  for (const auto& r : fig.rótulos) {
    const QFont f = Fuente(r.tamaño, d);
    p.setFont(f);
    p.setPen(AColor(r.color));
    const QFontMetricsF m(f, p.device());
    const QString texto = AQ(r.texto);
    const double w = m.horizontalAdvance(texto);
    QPointF c = d.A(r.punto);
    if (r.alineación == "centro")
      c.rx() -= w / 2;
    else if (r.alineación == "derecha")
      c.rx() -= w + d.Px(3);
    else
      c.rx() += d.Px(3);
    if (r.alineación == "centro")
      c.ry() += m.ascent() / 2 - m.descent();
    else
      c.ry() -= d.Px(3);
    p.drawText(c, texto);
  }
  p.restore();

  // Frame, ticks and their numbers.
  p.setPen(QPen(Qt::black, std::max(0.5, d.u)));
  p.drawRect(d.área);
  p.setFont(d.fMarca);
  const QFontMetricsF mMarca(d.fMarca, p.device());
  const double tic = d.Px(5);
  for (double v : d.marcasX) {
    const QPointF a = d.A(v, d.y0);
    p.drawLine(a, QPointF(a.x(), a.y() + tic));
    const QString t = TextoMarca(v, d.pasoX);
    p.drawText(
        QPointF(a.x() - mMarca.horizontalAdvance(t) / 2, a.y() + tic + mMarca.ascent() + d.Px(1)),
        t);
  }
  for (double v : d.marcasY) {
    const QPointF a = d.A(d.x0, v);
    p.drawLine(a, QPointF(a.x() - tic, a.y()));
    const QString t = TextoMarca(v, d.pasoY);
    p.drawText(QPointF(a.x() - tic - d.Px(2) - mMarca.horizontalAdvance(t),
                       a.y() + mMarca.ascent() / 2 - mMarca.descent() / 2),
               t);
  }

  // Axis captions.
  p.setFont(d.fEje);
  const QFontMetricsF mEje(d.fEje, p.device());
  double yPie = d.área.bottom() + tic + mMarca.height() * 1.4;
  if (!fig.ejeX.empty()) {
    p.drawText(QRectF(d.área.left(), yPie, d.área.width(), mEje.height() * 1.2), Qt::AlignCenter,
               AQ(fig.ejeX));
    yPie += mEje.height() * 1.3;
  }
  if (!fig.ejeY.empty()) {
    p.save();
    const double xEje = marco.left() + d.Px(8) + mEje.height() * 0.5;
    p.translate(xEje, d.área.center().y());
    p.rotate(-90);
    p.drawText(QRectF(-d.área.height() / 2, -mEje.height() / 2, d.área.height(), mEje.height()),
               Qt::AlignCenter, AQ(fig.ejeY));
    p.restore();
  }

  // Legend rows, centred under the axis caption.
  p.setFont(d.fLeyenda);
  const QFontMetricsF mLeyenda(d.fLeyenda, p.device());
  const double muestra = d.Px(26), separación = d.Px(18);
  for (const auto& fila : d.filasLeyenda) {
    double ancho = 0;
    for (std::size_t k : fila)
      ancho += muestra + d.Px(5) + mLeyenda.horizontalAdvance(d.leyenda[k].texto) + separación;
    double x = marco.center().x() - (ancho - separación) / 2;
    const double yc = yPie + d.altoFilaLeyenda / 2;
    for (std::size_t k : fila) {
      const Trazo& t = *d.leyenda[k].trazo;
      if (t.relleno) {
        p.setPen(PlumaDeTrazo(t, d));
        p.setBrush(AColor(t.colorRelleno));
        p.drawRect(QRectF(x, yc - d.Px(5), muestra, d.Px(10)));
        p.setBrush(Qt::NoBrush);
      } else if (!t.sinLínea) {
        p.setPen(PlumaDeTrazo(t, d));
        p.drawLine(QPointF(x, yc), QPointF(x + muestra, yc));
      } else if (t.marcador.empty()) {
        DibujarFlecha(p, QPointF(x, yc), QPointF(x + muestra, yc), AColor(t.color),
                      std::max(0.5, t.grosor * d.u * d.s), d.Px(8));
      }
      if (!t.marcador.empty())
        DibujarMarcador(p, QPointF(x + muestra / 2, yc), t.marcador, d.Px(6), AColor(t.color),
                        d.Px(1));
      p.setPen(Qt::black);
      p.drawText(
          QPointF(x + muestra + d.Px(5), yc + mLeyenda.ascent() / 2 - mLeyenda.descent() / 2),
          d.leyenda[k].texto);
      x += muestra + d.Px(5) + mLeyenda.horizontalAdvance(d.leyenda[k].texto) + separación;
    }
    yPie += d.altoFilaLeyenda;
  }
  p.restore();
}

bool CoordenadasEnFigura(const Figura& figura, const QRectF& marco, const QPaintDevice* dispositivo,
                         QPointF punto, double& x, double& y) {
  const Disposición d = Disponer(figura, marco, dispositivo);
  if (!d.área.contains(punto)) return false;
  x = d.x0 + (punto.x() - d.área.left()) / d.área.width() * (d.x1 - d.x0);
  y = d.y0 + (d.área.bottom() - punto.y()) / d.área.height() * (d.y1 - d.y0);
  return true;
}

namespace {

bool Fallo(QString* error, const QString& texto) {
  if (error) *error = texto;
  return false;
}

bool Abrir(QSaveFile& archivo, QString* error) {
  if (!archivo.open(QIODevice::WriteOnly))
    return Fallo(error, QStringLiteral("No se pudo escribir el archivo %1: %2")
                            .arg(archivo.fileName(), archivo.errorString()));
  return true;
}

bool Confirmar(QSaveFile& archivo, QString* error) {
  if (!archivo.commit())
    return Fallo(error, QStringLiteral("No se pudo terminar de escribir el archivo %1: %2")
                            .arg(archivo.fileName(), archivo.errorString()));
  return true;
}

}  // namespace

bool ExportarPNG(const Figura& figura, const QString& ruta, QString* error, QSize tamaño) {
  QImage imagen(tamaño, QImage::Format_ARGB32_Premultiplied);
  imagen.setDotsPerMeterX(3780);  // 96 dots per inch, as a screen
  imagen.setDotsPerMeterY(3780);
  imagen.fill(Qt::white);
  {
    QPainter p(&imagen);
    DibujarFigura(p, figura, QRectF(QPointF(0, 0), QSizeF(tamaño)));
  }
  QSaveFile archivo(ruta);
  if (!Abrir(archivo, error)) return false;
  if (!imagen.save(&archivo, "PNG")) {
    archivo.cancelWriting();
    return Fallo(error, QStringLiteral("No se pudo escribir la imagen %1.").arg(ruta));
  }
  return Confirmar(archivo, error);
}

bool ExportarSVG(const Figura& figura, const QString& ruta, QString* error, QSize tamaño) {
  QSaveFile archivo(ruta);
  if (!Abrir(archivo, error)) return false;
  {
    QSvgGenerator svg;
    svg.setOutputDevice(&archivo);
    svg.setSize(tamaño);
    svg.setViewBox(QRect(QPoint(0, 0), tamaño));
    svg.setTitle(QString::fromStdString(figura.título));
    svg.setDescription(QStringLiteral("Lomaterra"));
    QPainter p;
    if (!p.begin(&svg)) {
      archivo.cancelWriting();
      return Fallo(error, QStringLiteral("No se pudo dibujar en el archivo %1.").arg(ruta));
    }
    DibujarFigura(p, figura, QRectF(QPointF(0, 0), QSizeF(tamaño)));
    p.end();
  }
  return Confirmar(archivo, error);
}

bool ExportarPDF(const Figura& figura, const QString& ruta, QString* error) {
  QSaveFile archivo(ruta);
  if (!Abrir(archivo, error)) return false;
  {
    QPdfWriter pdf(&archivo);
    pdf.setResolution(600);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                  QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
    pdf.setTitle(QString::fromStdString(figura.título));
    pdf.setCreator(QStringLiteral("Lomaterra"));
    QPainter p;
    if (!p.begin(&pdf)) {
      archivo.cancelWriting();
      return Fallo(error, QStringLiteral("No se pudo dibujar en el archivo %1.").arg(ruta));
    }
    DibujarFigura(p, figura, QRectF(QPointF(0, 0), QSizeF(pdf.width(), pdf.height())));
    p.end();
  }
  return Confirmar(archivo, error);
}

bool ExportarFigura(const Figura& figura, const QString& ruta, QString* error) {
  const QString ext = QFileInfo(ruta).suffix().toLower();
  if (ext == QLatin1String("png")) return ExportarPNG(figura, ruta, error);
  if (ext == QLatin1String("svg")) return ExportarSVG(figura, ruta, error);
  if (ext == QLatin1String("pdf")) return ExportarPDF(figura, ruta, error);
  return Fallo(error,
               QStringLiteral("El archivo %1 debe terminar en .png, .svg o .pdf.").arg(ruta));
}

}  // namespace lomaterra
