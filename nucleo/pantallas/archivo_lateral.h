// The side coordinate file of slope, strata and phreatic line, taludestratosNF.cod, read at the
// user's word from its fixed folder.
#pragma once

#include <string>

namespace lomaterra {

struct Proyecto;

// Full path of a side file given its folder and name. The folders hang from c:\ on a system with
// drives and from the user's home folder elsewhere; the environment variable
// LOMATERRA_CARPETA_BASE, when set, stands in place of either.
std::string RutaArchivoLateral(const std::string& carpeta, const std::string& archivo);
// c:\CarpetaTaludEstratoNF\taludestratosNF.cod or its counterpart.
std::string RutaArchivoTaludEstratosNF();

struct LecturaLateral {
  bool abierto = false;  // the file was found and opened: the tables have been rewritten
  std::string error;     // empty when the whole file was read; else the reason, in Spanish
};

// Reads the slope file at `ruta` into the surface, phreatic and strata tables: each count, then
// that many records X, Y; the strata as count of strata, then per stratum its count of points and
// its records. On a failure the tables keep the rows read so far and their counts say how many.
LecturaLateral LeerArchivoTaludEstratosNF(Proyecto& p, const std::string& ruta);

}  // namespace lomaterra
