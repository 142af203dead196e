#include "sismico/registro.h"

#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"

namespace lomaterra {

std::string DefectoDelRegistro(const std::vector<FilaRegistro>& filas) {
  if (filas.size() < 2)
    return "El registro sísmico debe tener al menos dos puntos (tiempo, aceleración horizontal y "
           "aceleración vertical): con menos no se puede hallar el intervalo de tiempo. El registro "
           "no se ha guardado.";
  if (filas.size() > 32767)
    return "El registro sísmico tiene más de 32767 puntos, que es el máximo que admite el "
           "programa. El registro no se ha guardado.";
  for (std::size_t i = 0; i < filas.size(); ++i) {
    const FilaRegistro& f = filas[i];
    if (!std::isfinite(f.tiempo) || !std::isfinite(f.horizontal) || !std::isfinite(f.vertical))
      return "La fila " + std::to_string(i + 1) +
             " del registro sísmico tiene un valor que no es un número. El registro no se ha "
             "guardado.";
    if (i > 0 && !(f.tiempo > filas[i - 1].tiempo))
      return "Los tiempos del registro sísmico deben crecer de una fila a la siguiente: la fila " +
             std::to_string(i + 1) + " tiene el tiempo " + Formato(f.tiempo, "#0.000") +
             " s, que no es mayor que el de la fila " + std::to_string(i) + " (" +
             Formato(filas[i - 1].tiempo, "#0.000") + " s). El registro no se ha guardado.";
  }
  return {};
}

std::vector<FilaRegistro> RegistroDelProyecto(const Proyecto& p) {
  const auto& s = p.Sísmico;
  std::vector<FilaRegistro> filas;
  for (long i = 1; i <= s.NúmeroPuntosRegistro; ++i)
    filas.push_back({s.TiempoRegistro.Leer(i), s.AceleraciónHorizontal.Leer(i),
                     s.AceleraciónVertical.Leer(i)});
  return filas;
}

void GuardarRegistro(Proyecto& p, const std::vector<FilaRegistro>& filas) {
  auto& s = p.Sísmico;
  const long n = static_cast<long>(filas.size());
  s.TiempoRegistro.Redimensionar(n);
  s.AceleraciónHorizontal.Redimensionar(n);
  s.AceleraciónVertical.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const FilaRegistro& f = filas[static_cast<std::size_t>(i - 1)];
    s.TiempoRegistro[i] = f.tiempo;
    s.AceleraciónHorizontal[i] = f.horizontal;
    s.AceleraciónVertical[i] = f.vertical;
  }
  s.NúmeroPuntosRegistro = static_cast<DatosSísmicos::Entero>(n);
  s.RegistroDado = true;
  p.DatosGuardados = false;
}

LecturaRegistro LeerArchivoRegistroSísmico(const std::string& ruta) {
  LecturaRegistro r;
  LectorSecuencial l("");
  try {
    l = LectorSecuencial::DeArchivo(ruta);
  } catch (const ErrorLectura&) {
    r.error = "No se encontró el archivo " + ruta + ". El registro sísmico no se ha cambiado.";
    return r;
  }
  r.abierto = true;
  long fila = 0;
  try {
    const double n = l.LeerReal();
    if (!(n >= 0) || n != std::floor(n) || n > 32767)
      throw ErrorLectura("el número de puntos del registro no es un entero positivo");
    for (fila = 1; fila <= static_cast<long>(n); ++fila) {
      FilaRegistro f;
      f.tiempo = l.LeerReal();
      f.horizontal = l.LeerReal();
      f.vertical = l.LeerReal();
      r.filas.push_back(f);
    }
  } catch (const ErrorLectura& e) {
    r.filas.clear();
    r.error = "Error leyendo el archivo " + ruta +
              (fila > 0 ? " en el punto " + std::to_string(fila) + " del registro" : std::string()) +
              ": " + e.what() + ". El registro sísmico no se ha cambiado.";
    return r;
  }
  if (std::string defecto = DefectoDelRegistro(r.filas); !defecto.empty()) {
    r.filas.clear();
    r.error = "El archivo " + ruta + " no se puede usar. " + defecto;
  }
  return r;
}

}  // namespace lomaterra
