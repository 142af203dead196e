#include "pantallas/archivo_lateral.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"

namespace lomaterra {

std::string RutaArchivoLateral(const std::string& carpeta, const std::string& archivo) {
  if (const char* base = std::getenv("LOMATERRA_CARPETA_BASE"); base != nullptr && *base != '\0') {
    std::string r = base;
    if (r.back() != '/' && r.back() != '\\') r += '/';
    return r + carpeta + "/" + archivo;
  }
#ifdef _WIN32
  return "c:\\" + carpeta + "\\" + archivo;
#else
  const char* casa = std::getenv("HOME");
  std::string r = casa != nullptr && *casa != '\0' ? casa : ".";
  if (r.back() != '/') r += '/';
  return r + carpeta + "/" + archivo;
#endif
}

std::string RutaArchivoTaludEstratosNF() {
  return RutaArchivoLateral("CarpetaTaludEstratoNF", "taludestratosNF.cod");
}

namespace {

// A count of the file: a whole number, 0 or above.
Entero LeerCuenta(LectorSecuencial& l, const char* qué) {
  const double n = l.LeerReal();
  if (!(n >= 0 && n <= 32767) || n != std::floor(n))
    throw ErrorLectura(std::string("el número de ") + qué + " no es un entero positivo o cero");
  return static_cast<Entero>(n);
}

// Reads `n` records X, Y into a coordinate table; `cuenta` follows the rows actually read.
void LeerPuntos(LectorSecuencial& l, TablaXY& t, Entero& cuenta, Entero n) {
  // Dimensioned by what the rest of the file can hold, not by the count alone: a short file
  // still ends the read at its end, with the rows read kept.
  t.Redimensionar(std::min<long>(n, l.Caben(2)));
  cuenta = 0;
  for (Entero i = 1; i <= n; ++i) {
    const double x = l.LeerReal();
    const double y = l.LeerReal();
    t.X[i] = x;
    t.Y[i] = y;
    cuenta = i;
  }
}

}  // namespace

LecturaLateral LeerArchivoTaludEstratosNF(Proyecto& p, const std::string& ruta) {
  LecturaLateral r;
  LectorSecuencial l("");
  try {
    l = LectorSecuencial::DeArchivo(ruta);
  } catch (const ErrorLectura& e) {
    std::error_code ec;
    r.error = std::filesystem::exists(ruta, ec)
                  ? "No se pudo leer el archivo " + ruta + " (" + e.what() + "). Las coordenadas no se han cambiado."
                  : "No se encontró el archivo " + ruta + ". Las coordenadas no se han cambiado.";
    return r;
  }
  r.abierto = true;
  const char* parte = "las coordenadas del talud";
  try {
    LeerPuntos(l, p.CoordenadasTalud, p.NúmeroPuntosTalud, LeerCuenta(l, "puntos del talud"));
    parte = "las coordenadas del nivel freático";
    LeerPuntos(l, p.CoordenadasFreático, p.NúmeroPuntosFreático,
               LeerCuenta(l, "puntos del nivel freático"));
    parte = "los estratos";
    const Entero estratos = LeerCuenta(l, "estratos");
    // The same guards as the project file: the tables are dimensioned by what the rest of the
    // file can hold, and a table of strata by points past what a project holds is refused.
    const long filas = std::min<long>(estratos, l.Caben(1));
    p.NúmeroEstratos = 0;
    p.PuntosEstrato.Redimensionar(filas);
    p.XEstrato.Redimensionar(filas, 0);
    p.YEstrato.Redimensionar(filas, 0);
    for (Entero s = 1; s <= estratos; ++s) {
      const Entero n = LeerCuenta(l, "puntos del estrato");
      const long columnas = std::min<long>(n, l.Caben(2));
      if (s > filas) throw ErrorLectura("el archivo terminó antes de lo esperado");
      if (filas * columnas > kCeldasMáximas) throw ErrorLectura("la tabla de estratos por puntos es demasiado grande");
      p.NúmeroEstratos = s;
      p.PuntosEstrato[s] = 0;
      if (columnas > p.XEstrato.Columnas()) {
        p.XEstrato.RedimensionarConservando(filas, columnas);
        p.YEstrato.RedimensionarConservando(filas, columnas);
      }
      for (Entero j = 1; j <= n; ++j) {
        const double x = l.LeerReal();
        const double y = l.LeerReal();
        p.XEstrato(s, j) = x;
        p.YEstrato(s, j) = y;
        p.PuntosEstrato[s] = j;
      }
    }
  } catch (const ErrorLectura& e) {
    r.error = "Error leyendo el archivo " + ruta + " en " + parte + ": " + e.what() +
              ". Se conserva lo leído hasta ese punto.";
  }
  return r;
}

}  // namespace lomaterra
