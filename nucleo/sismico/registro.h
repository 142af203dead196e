// The seismic record: its rows as entered or read, the checks that a record must pass before it is
// stored, and the side file registrosismico.cod.
#pragma once

#include <string>
#include <vector>

namespace lomaterra {

struct Proyecto;

struct FilaRegistro {
  double tiempo = 0, horizontal = 0, vertical = 0;  // s, fractions of g
};

// Why a record cannot be stored, in Spanish; empty when it can: at least two rows, times that
// grow from row to row, and finite values.
std::string DefectoDelRegistro(const std::vector<FilaRegistro>& filas);

// The record of the project as rows.
std::vector<FilaRegistro> RegistroDelProyecto(const Proyecto& p);
// Stores a record that DefectoDelRegistro accepts: table, count and the flag of a given record.
void GuardarRegistro(Proyecto& p, const std::vector<FilaRegistro>& filas);

struct LecturaRegistro {
  bool abierto = false;              // the file was found
  std::vector<FilaRegistro> filas;   // the whole record, when `error` is empty
  std::string error;                 // else the reason, in Spanish
};

// Reads a record file: its count of rows, then that many records time, horizontal, vertical.
// Nothing of the project is touched: the caller stores the rows once they are accepted.
LecturaRegistro LeerArchivoRegistroSísmico(const std::string& ruta);

}  // namespace lomaterra
