// Printed reports as data: blocks of headings, paragraphs, tables and figures, and their division
// into pages. The desktop program draws the pages to PDF and to the printer; tests read them.
#pragma once

#include <string>
#include <vector>

#include "salida/figura.h"
#include "salida/resumen.h"

namespace lomaterra {

struct Proyecto;

struct BloqueInforme {
  enum class Tipo { Título, Subtítulo, Párrafo, Tabla, Figura, SaltoDePágina };
  Tipo tipo = Tipo::Párrafo;
  std::string texto;   // heading or paragraph
  TablaDeTexto tabla;  // for Tabla
  Figura figura;       // for Figura
};

struct Informe {
  std::string título;  // on the first page and in every page header
  std::vector<std::string>
      encabezado;  // page header lines: project, stations, date, engineer, company
  std::vector<BloqueInforme> bloques;

  void Título(const std::string& t) { bloques.push_back({BloqueInforme::Tipo::Título, t, {}, {}}); }
  void Subtítulo(const std::string& t) {
    bloques.push_back({BloqueInforme::Tipo::Subtítulo, t, {}, {}});
  }
  void Párrafo(const std::string& t) {
    bloques.push_back({BloqueInforme::Tipo::Párrafo, t, {}, {}});
  }
  void AñadirTabla(const TablaDeTexto& t) {
    bloques.push_back({BloqueInforme::Tipo::Tabla, "", t, {}});
  }
  void AñadirFigura(const Figura& f) {
    bloques.push_back({BloqueInforme::Tipo::Figura, "", {}, f});
  }
  void SaltoDePágina() { bloques.push_back({BloqueInforme::Tipo::SaltoDePágina, "", {}, {}}); }
};

// The report of the data given to the program: project information, geometry, strata, loads,
// calculation parameters and crack.
Informe InformeDeDatos(const Proyecto& p);
// The report of the results of the last limit-equilibrium calculation: method, factor of safety,
// iterations, slices, sums, anchors, the section drawing and the charts.
Informe InformeDeResultados(const Proyecto& p);

// --- Pages -------------------------------------------------------------------------------------

// The size of the writing area of a page, counted in lines and in characters of body text. The
// renderer measures them with its own fonts.
struct MedidasPágina {
  int líneas = 58;
  int caracteres = 100;
  int líneasFigura = 30;  // height of a figure
};

struct ElementoPágina {
  enum class Tipo { Título, Subtítulo, Línea, EncabezadoTabla, FilaTabla, Figura, Espacio };
  Tipo tipo = Tipo::Línea;
  std::string texto;       // Título, Subtítulo, Línea; the table's title for EncabezadoTabla
  std::size_t bloque = 0;  // the block it comes from (tables and figures)
  long fila = -1;          // row of the table for FilaTabla
  int líneas = 1;          // height in lines of body text
};

struct PáginaInforme {
  std::vector<ElementoPágina> elementos;
};

// Lays the blocks on pages. A heading never stands alone at the foot of a page; a table that does
// not fit goes on over the next pages with its captions repeated at the head of each part; a
// figure that does not fit starts a page.
std::vector<PáginaInforme> Paginar(const Informe& informe, const MedidasPágina& medidas);

// Lines of at most `ancho` characters, broken at blanks (a longer word is cut).
std::vector<std::string> PartirTexto(const std::string& texto, int ancho);
// Characters of a UTF-8 text (not bytes).
int Caracteres(const std::string& texto);
// Lines that the captions of a table take when each is broken into its column.
int LíneasEncabezado(const TablaDeTexto& t, int caracteresPorLínea);
// Width of every column in characters for a page of `caracteresPorLínea`.
std::vector<int> AnchosDeColumnas(const TablaDeTexto& t, int caracteresPorLínea);

}  // namespace lomaterra
