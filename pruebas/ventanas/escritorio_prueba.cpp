// The desk as a user meets it: whole texts in the boxes, and every sample giving at the desk (real
// boxes answered by hand, charts open and repainting) what the batch runner gives.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <memory>

#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "interfaz_qt.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"
#include "proyecto/proyecto.h"
#include "salida/graficos.h"
#include "ventana_apoyo.h"
#include "vista_grafico_qt.h"

namespace lomaterra {
namespace {

TEST(Escritorio, UnaCajaMuestraTodoSuTextoYUnoMuyLargoSeDesplaza) {
  pruebas::Aplicación();
  const std::string frase = "El peso unitario saturado es mayor que el peso unitario húmedo. ";
  for (const std::size_t largo : {600, 8000}) {
    std::string t;
    while (t.size() < largo) t += frase;
    t.resize(largo);
    auto caja = CrearCaja(t, "", true, nullptr);
    caja->show();
    auto* texto = caja->findChild<QLabel*>("TextoCaja");
    auto* área = caja->findChild<QScrollArea*>("DesplazamientoCaja");
    ASSERT_TRUE(texto && área && texto->wordWrap());
    EXPECT_GE(texto->height(), texto->heightForWidth(texto->width()));  // nothing cut
    EXPECT_LE(caja->width(), 700);
    EXPECT_EQ(área->verticalScrollBar()->maximum() > 0, largo > 600);
  }
}

// The real boxes answered as the scripted port answers, every text seen kept.
struct Contestador {
  Contestador(const char* r) {
    for (; *r; ++r) respuestas.push_back(*r == 'S');
    QObject::connect(&reloj, &QTimer::timeout, [this] {
      auto* caja = qobject_cast<CajaDeMensaje*>(QApplication::activeModalWidget());
      if (!caja || caja == última) return;
      última = caja;
      vistas.push_back(S(caja->text()));
      auto* sí = caja->findChild<QPushButton*>(QString::fromUtf8("BotónSí"));
      if (!sí) return caja->findChild<QPushButton*>(QString::fromUtf8("BotónAceptar"))->click();
      const bool r = respuestas.empty() || respuestas.front();  // then Yes, as the script
      if (!respuestas.empty()) respuestas.pop_front();
      (r ? sí : caja->findChild<QPushButton*>(QString::fromUtf8("BotónNo")))->click();
    });
    reloj.start(0);
  }
  std::deque<bool> respuestas;
  std::vector<std::string> vistas;
  QTimer reloj;
  QObject* última = nullptr;
};

TEST(Escritorio, CadaMuestraDaEnElEscritorioElFactorDelLote) {
  pruebas::Aplicación();
  const std::pair<Acción, Entero> métodos[] = {{MétodoFellenius, 3}, {MétodoBishop, 2},
                                               {MétodoJanbu, 4}, {ProcesoIterativoEnSuelos, 1}};
  Proyecto escritorio;  // one program run: every sample in turn, charts left open
  InterfazQt ui;
  ui.AlMostrar([](VistaPantalla&) { QApplication::processEvents(); });
  std::vector<std::unique_ptr<QWidget>> gráficos;
  for (const auto& e : std::filesystem::directory_iterator(LOMATERRA_EJEMPLOS))
    for (const auto& [acción, número] : métodos)
      for (const char* respuestas : {"N", "NNNS", "NSNNS"}) {
        SCOPED_TRACE(e.path().string() + " " + std::to_string(número) + " " + respuestas);
        Proyecto lote;
        InterfazGuionada abrir, guion(respuestas, true);
        for (Proyecto* p : {&lote, &escritorio}) {
          AbrirArchivoDeProyecto(*p, abrir, e.path());
          p->ParámetrosIniciales.MétodoDeCálculo = número;
        }
        EjecutarComando(acción, lote, guion);
        Contestador mano(respuestas);
        EjecutarComando(acción, escritorio, ui);
        std::vector<std::string> esperadas;
        for (const auto& a : guion.Transcripción())
          if (a.tipo == "mensaje" || a.tipo == "pregunta") esperadas.push_back(a.texto);
        EXPECT_EQ(mano.vistas, esperadas);
        EXPECT_EQ(escritorio.HistoriaIteraciones.FactorDeSeguridad.Leer(escritorio.NúmeroIteraciones),
                  lote.HistoriaIteraciones.FactorDeSeguridad.Leer(lote.NúmeroIteraciones));
        if (escritorio.CálculoHecho && gráficos.size() < 6)
          gráficos.emplace_back(CrearVistaGráfico(FiguraGráfico(escritorio, "GráficoEsfuerzoNormalesTotales"), nullptr));
        if (!gráficos.empty()) gráficos.back()->show();
      }
}

}  // namespace
}  // namespace lomaterra
