#include "proyecto/historia_sismica.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

constexpr int kNodo = 6, kElemento4 = 4, kElemento3 = 3;

// The node arrays by (step, degree) and the element arrays by (step, element), in the order of
// the block's rows.
struct Columnas {
  Tabla2<double>* nodo[3];
  Tabla2<double>* elemento3[3];
  Tabla2<double>* elemento4[3];
};

Columnas ColumnasDe(DatosSísmicos& s) {
  return {{&s.DesplazamientoSísmico, &s.VelocidadSísmica, &s.AceleraciónSísmica},
          {&s.EsfuerzoMayor, &s.EsfuerzoMenor, &s.MóduloCortanteActual},
          {&s.EsfuerzoX, &s.EsfuerzoY, &s.EsfuerzoXY}};
}

}  // namespace

void HistoriaDesdeResultados(Proyecto& p) {
  DatosSísmicos& s = p.Sísmico;
  const long pasos = s.NúmeroPuntosRegistro, NN = p.Malla.NúmeroDeNodos, NE = p.Malla.NúmeroDeElementos;
  const long hechos = std::min<long>(s.PasosCalculados, pasos);
  const Columnas c = ColumnasDe(s);
  s.HistoriaNodos.assign(static_cast<std::size_t>(pasos * NN * kNodo), 0.0);
  s.HistoriaElementos4.assign(static_cast<std::size_t>(pasos * NE * kElemento4), 0.0);
  s.HistoriaElementos3.assign(static_cast<std::size_t>(pasos * NE * kElemento3), 0.0);
  for (long t = 1; t <= hechos; ++t) {
    for (long n = 1; n <= NN; ++n) {
      double* fila = &s.HistoriaNodos[static_cast<std::size_t>(((t - 1) * NN + n - 1) * kNodo)];
      for (int h = 0; h < 3; ++h) {
        fila[2 * h] = c.nodo[h]->Leer(t, 2 * n - 1);
        fila[2 * h + 1] = c.nodo[h]->Leer(t, 2 * n);
      }
    }
    for (long e = 1; e <= NE; ++e) {
      double* f4 = &s.HistoriaElementos4[static_cast<std::size_t>(((t - 1) * NE + e - 1) * kElemento4)];
      double* f3 = &s.HistoriaElementos3[static_cast<std::size_t>(((t - 1) * NE + e - 1) * kElemento3)];
      for (int h = 0; h < 3; ++h) {
        f4[h] = c.elemento4[h]->Leer(t, e);
        f3[h] = c.elemento3[h]->Leer(t, e);
      }
      f4[3] = p.Malla.ProfundidadFreático.Leer(e);
    }
  }
  s.PasosSísmicos = static_cast<DatosSísmicos::Entero>(hechos);
  s.SismoCalculado = s.CálculoSísmicoHecho = s.SismoIntegrado = true;
}

void ResultadosDesdeHistoria(Proyecto& p) {
  DatosSísmicos& s = p.Sísmico;
  const long pasos = s.NúmeroPuntosRegistro, NN = p.Malla.NúmeroDeNodos, NE = p.Malla.NúmeroDeElementos;
  const long hechos = std::clamp<long>(s.PasosSísmicos, 0, pasos);
  if (!(s.SismoCalculado && s.CálculoSísmicoHecho) || hechos < 1) return;
  if (s.HistoriaNodos.size() < static_cast<std::size_t>(pasos * NN * kNodo) ||
      s.HistoriaElementos4.size() < static_cast<std::size_t>(pasos * NE * kElemento4) ||
      s.HistoriaElementos3.size() < static_cast<std::size_t>(pasos * NE * kElemento3))
    return;
  const Columnas c = ColumnasDe(s);
  for (Tabla2<double>* t : {&s.DesplazamientoSísmico, &s.VelocidadSísmica, &s.AceleraciónSísmica})
    t->Redimensionar(pasos, 2 * NN);
  for (Tabla2<double>* t : {&s.DeformaciónX, &s.DeformaciónY, &s.DeformaciónXY, &s.EsfuerzoX, &s.EsfuerzoY,
                            &s.EsfuerzoXY, &s.EsfuerzoMayor, &s.EsfuerzoMenor, &s.MóduloCortanteActual,
                            &s.PoissonActual, &s.PresiónPorosSísmica, &s.RelaciónAmortiguamientoActual})
    t->Redimensionar(pasos, NE);
  for (long t = 1; t <= hechos; ++t) {
    for (long n = 1; n <= NN; ++n) {
      const double* fila = &s.HistoriaNodos[static_cast<std::size_t>(((t - 1) * NN + n - 1) * kNodo)];
      for (int h = 0; h < 3; ++h) {
        (*c.nodo[h])(t, 2 * n - 1) = fila[2 * h];
        (*c.nodo[h])(t, 2 * n) = fila[2 * h + 1];
      }
    }
    for (long e = 1; e <= NE; ++e) {
      const double* f4 = &s.HistoriaElementos4[static_cast<std::size_t>(((t - 1) * NE + e - 1) * kElemento4)];
      const double* f3 = &s.HistoriaElementos3[static_cast<std::size_t>(((t - 1) * NE + e - 1) * kElemento3)];
      for (int h = 0; h < 3; ++h) {
        (*c.elemento4[h])(t, e) = f4[h];
        (*c.elemento3[h])(t, e) = f3[h];
      }
    }
  }
  // The depth below the phreatic line of each element travels in the block, not in item 30.
  p.Malla.ProfundidadFreático.Redimensionar(NE);
  for (long e = 1; e <= NE; ++e)
    p.Malla.ProfundidadFreático[e] = s.HistoriaElementos4[static_cast<std::size_t>((e - 1) * kElemento4 + 3)];
  s.PasosCalculados = hechos;
  MáximosSísmicos(p);
  s.ResultadosSísmicos = true;
}

void MáximosSísmicos(Proyecto& p) {
  DatosSísmicos& s = p.Sísmico;
  const Tabla2<double>& u = s.DesplazamientoSísmico;
  s.DesplazamientoMáximoPorPaso.Redimensionar(u.Filas());
  s.DesplazamientoMáximo = 0;
  s.NodoMáximo = s.PasoMáximo = 0;
  for (long t = 1; t <= std::min(s.PasosCalculados, u.Filas()); ++t) {
    double paso = 0;
    for (long d = 1; d <= u.Columnas(); ++d) {
      const double v = u(t, d);
      if (std::fabs(v) > std::fabs(paso)) paso = v;
      if (std::fabs(v) > std::fabs(s.DesplazamientoMáximo)) {
        s.DesplazamientoMáximo = v;
        s.NodoMáximo = (d + 1) / 2;
        s.PasoMáximo = t;
      }
    }
    s.DesplazamientoMáximoPorPaso[t] = paso;
  }
}

}  // namespace lomaterra
