// Shared by the window tests: one QApplication for the whole run, offscreen, and children by name.
#pragma once

#include <QApplication>
#include <QFont>

namespace lomaterra::pruebas {

inline QApplication& Aplicación() {
  static int argc = 1;
  static char nombre[] = "prueba_ventanas";
  static char* argv[] = {nombre, nullptr};
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Never destroyed: a QApplication torn down among the other statics at exit can crash after
  // every test has passed.
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// A child widget by its control name (accents included).
template <class T>
T* Hijo(QObject& w, const char* nombre) {
  return w.findChild<T*>(QString::fromUtf8(nombre));
}

}  // namespace lomaterra::pruebas
