// What the last limit-equilibrium calculation left, gathered in one place for the result screens,
// the charts, the reports and the clipboard: the method, the factor of safety, the slice table with
// its units, the iteration history and the sums.
#pragma once

#include <string>
#include <vector>

#include "proyecto/tabla.h"

namespace lomaterra {

struct Proyecto;

// A table as text: captions (units included) and rows of formatted numbers.
struct TablaDeTexto {
  std::string título;
  std::vector<std::string> columnas;
  std::vector<std::vector<std::string>> filas;
};

// Slices of the last calculation: NúmeroBordes - 1, or 0 when there are none.
long NúmeroDeDovelas(const Proyecto& p);
// True when a limit-equilibrium calculation has left its results in memory: slices, a factor of
// safety in the last row of the history, and the stress columns filled for every slice.
bool HayResultados(const Proyecto& p);
// The factor of safety of the last row of the history (0 when there is none).
double FactorDeSeguridadFinal(const Proyecto& p);
// "Bishop A. W.", "Fellenius W.", ... with "(rocas)" for the methods in rock.
std::string NombreDelMétodo(const Proyecto& p);
// The column has n rows and at least one of them is not zero.
bool ColumnaLlena(const Tabla<double>& columna, long n);
// The principal stresses are given only by the methods that compute them.
bool HayEsfuerzosPrincipales(const Proyecto& p);

// The slice table: every column the calculation fills for the current material.
TablaDeTexto TablaResultadosDovelas(const Proyecto& p);
// Iteration history: number, the multipliers when the method uses them, the factor of safety.
TablaDeTexto TablaHistoriaIteraciones(const Proyecto& p);
// The sums kept after the calculation.
TablaDeTexto TablaSumas(const Proyecto& p);

// Tab-separated text, one line a row, captions first; numbers with a point as decimal sign.
std::string TextoTabulado(const TablaDeTexto& t);

// The edges of the slices, numbered 1 to n + 1 (index 0 unused): as the slice stages left them,
// or rebuilt from the middles and widths when the project comes from a file, which keeps those but
// not the edges. Rebuilt, the end edges on the failure surface are its end points, the inner ones
// the straight line between the neighbouring base middles, the surface read from its table.
struct BordesDeDovelas {
  long n = 0;
  bool guardados = false;  // from the edge columns themselves
  std::vector<double> x, yFalla, yTalud;
};
BordesDeDovelas Bordes(const Proyecto& p);

// The length of the base of slice i between its two edges.
double LongitudBase(const BordesDeDovelas& b, long i);
// The inclination of the base of slice i in radians (positive when the base rises towards the
// crest, towards greater X).
double InclinaciónBase(const BordesDeDovelas& b, long i);

}  // namespace lomaterra
