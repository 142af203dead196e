#include "pantallas/archivo_lateral.h"

#include <algorithm>
#include <cstdlib>

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
  if (n < 0 || n != static_cast<double>(static_cast<long>(n)) || n > 32767)
    throw ErrorLectura(std::string("el número de ") + qué + " no es un entero positivo o cero");
  return static_cast<Entero>(n);
}

// Reads `n` records X, Y into a coordinate table; `cuenta` follows the rows actually read.
void LeerPuntos(LectorSecuencial& l, TablaXY& t, Entero& cuenta, Entero n) {
  t.Redimensionar(n);
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
  } catch (const ErrorLectura&) {
    r.error = "No se encontró el archivo " + ruta + ". Las coordenadas no se han cambiado.";
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
    p.NúmeroEstratos = 0;
    p.PuntosEstrato.Redimensionar(estratos);
    p.XEstrato.Redimensionar(estratos, 0);
    p.YEstrato.Redimensionar(estratos, 0);
    for (Entero s = 1; s <= estratos; ++s) {
      const Entero n = LeerCuenta(l, "puntos del estrato");
      p.NúmeroEstratos = s;
      p.PuntosEstrato[s] = 0;
      if (n > p.XEstrato.Columnas()) {
        p.XEstrato.RedimensionarConservando(estratos, n);
        p.YEstrato.RedimensionarConservando(estratos, n);
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
