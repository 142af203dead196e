#include "resumen_sismico.h"

#include <charconv>
#include <sstream>

#include "proyecto/compat.h"
#include "resumen.h"

namespace lomaterra::lote {

namespace {

std::string LeerLista(const std::string& texto, const char* qué, std::vector<long>& lista) {
  std::size_t desde = 0;
  while (desde < texto.size()) {
    const std::size_t coma = std::min(texto.find(',', desde), texto.size());
    const std::string parte = texto.substr(desde, coma - desde);
    long v = 0;
    const auto [fin, error] = std::from_chars(parte.data(), parte.data() + parte.size(), v);
    if (parte.empty() || error != std::errc{} || fin != parte.data() + parte.size() || v < 1)
      return std::string("--historias: \"") + parte + "\" no es un número de " + qué + " (un entero de 1 en adelante).";
    lista.push_back(v);
    desde = coma + 1;
  }
  return "";
}

void Serie(std::ostringstream& s, const char* nombre, const Tabla2<double>& t, long columna, long pasos) {
  s << ", " << TextoJson(nombre) << ": [";
  for (long k = 1; k <= pasos; ++k) s << (k > 1 ? ", " : "") << NúmeroJson(t.Leer(k, columna));
  s << "]";
}

}  // namespace

std::string LeerSelecciónHistorias(const std::string& valor, SelecciónHistorias& s) {
  const std::size_t dos = valor.find(':');
  if (dos == std::string::npos || valor.find(':', dos + 1) != std::string::npos)
    return "--historias se escribe NODOS:ELEMENTOS (por ejemplo 3,7:1,2; una lista puede quedar vacía), y se dio \"" +
           valor + "\".";
  if (auto e = LeerLista(valor.substr(0, dos), "nodo", s.nodos); !e.empty()) return e;
  return LeerLista(valor.substr(dos + 1), "elemento", s.elementos);
}

std::string FueraDeLaMalla(const SelecciónHistorias& s, const Proyecto& p) {
  for (long n : s.nodos)
    if (n > p.Malla.NúmeroDeNodos)
      return "--historias: el nodo " + std::to_string(n) + " no existe (la malla tiene " +
             std::to_string(p.Malla.NúmeroDeNodos) + " nodos).";
  for (long e : s.elementos)
    if (e > p.Malla.NúmeroDeElementos)
      return "--historias: el elemento " + std::to_string(e) + " no existe (la malla tiene " +
             std::to_string(p.Malla.NúmeroDeElementos) + " elementos).";
  return "";
}

namespace {

const char* NombreDelMétodo(char m) {
  return m == 'D' ? "MétodoIntegralDuhamel"
         : m == 'P' ? "MétodoPasoAPasoEcMovimientoSinDesacoplar"
         : m == 'M' ? "PasoAPasoDesacoplado"
                    : "";
}

}  // namespace

std::string SísmicoComoTexto(const Proyecto& p) {
  const DatosSísmicos& d = p.Sísmico;
  if (!d.ResultadosSísmicos || p.TipoDeAnálisis != "F") return "";
  std::ostringstream s;
  const std::string método = NombreDelMétodo(d.MétodoRespuesta);
  s << "RespuestaSísmica: " << (método.empty() ? "leída del proyecto" : método) << ", " << d.PasosCalculados
    << " de " << d.NúmeroPuntosRegistro << " registros\n";
  s << "DesplazamientoMáximo: " << Formato(d.DesplazamientoMáximo, "#0.000") << " cm (nodo " << d.NodoMáximo << ", registro "
    << d.PasoMáximo << ")\n";
  if (d.CorteAlcanzado) s << "Aviso: algún desplazamiento alcanzó el límite de corte\n";
  if (d.ReglaDel75) s << "Aviso: se cumplió la regla del 75% (más del 75% de los nodos pasó de 50 cm)\n";
  if (d.CálculoInterrumpido) s << "Aviso: el cálculo no llegó al último registro (Cancelar o una falla)\n";
  return s.str();
}

std::string SísmicoComoJson(const Proyecto& p, const std::optional<SelecciónHistorias>& selección) {
  const DatosSísmicos& d = p.Sísmico;
  if (!d.ResultadosSísmicos || p.TipoDeAnálisis != "F") return "";
  const long pasos = d.PasosCalculados;
  std::vector<long> nodos, elementos;
  if (selección) {
    nodos = selección->nodos, elementos = selección->elementos;
  } else {
    for (long n = 1; n <= p.Malla.NúmeroDeNodos; ++n) nodos.push_back(n);
    for (long e = 1; e <= p.Malla.NúmeroDeElementos; ++e) elementos.push_back(e);
  }
  const char* método = NombreDelMétodo(d.MétodoRespuesta);
  std::ostringstream s;
  // A run read back from a project file does not say which method made it.
  s << "{\n    \"Método\": " << (*método ? TextoJson(método) : std::string("null")) << ", \"PasosCalculados\": " << pasos
    << ", \"CorteAlcanzado\": " << (d.CorteAlcanzado ? "true" : "false")
    << ", \"ReglaDel75\": " << (d.ReglaDel75 ? "true" : "false")
    << ", \"CálculoInterrumpido\": " << (d.CálculoInterrumpido ? "true" : "false") << ",\n";
  s << "    \"DesplazamientoMáximo\": " << NúmeroJson(d.DesplazamientoMáximo) << ", \"NodoMáximo\": " << d.NodoMáximo
    << ", \"PasoMáximo\": " << d.PasoMáximo << ",\n";
  s << "    \"Tiempo\": [";
  for (long k = 1; k <= pasos; ++k) s << (k > 1 ? ", " : "") << NúmeroJson(d.TiempoRegistro.Leer(k));
  s << "],\n    \"Nodos\": [";
  for (std::size_t i = 0; i < nodos.size(); ++i) {
    const long n = nodos[i];
    s << (i ? "," : "") << "\n      {\"Nodo\": " << n;
    Serie(s, "DesplazamientoX", d.DesplazamientoSísmico, 2 * n - 1, pasos);
    Serie(s, "DesplazamientoY", d.DesplazamientoSísmico, 2 * n, pasos);
    Serie(s, "VelocidadX", d.VelocidadSísmica, 2 * n - 1, pasos);
    Serie(s, "VelocidadY", d.VelocidadSísmica, 2 * n, pasos);
    Serie(s, "AceleraciónX", d.AceleraciónSísmica, 2 * n - 1, pasos);
    Serie(s, "AceleraciónY", d.AceleraciónSísmica, 2 * n, pasos);
    s << "}";
  }
  s << "],\n    \"Elementos\": [";
  for (std::size_t i = 0; i < elementos.size(); ++i) {
    const long e = elementos[i];
    s << (i ? "," : "") << "\n      {\"Elemento\": " << e;
    Serie(s, "EsfuerzoX", d.EsfuerzoX, e, pasos);
    Serie(s, "EsfuerzoY", d.EsfuerzoY, e, pasos);
    Serie(s, "EsfuerzoXY", d.EsfuerzoXY, e, pasos);
    Serie(s, "EsfuerzoMayor", d.EsfuerzoMayor, e, pasos);
    Serie(s, "EsfuerzoMenor", d.EsfuerzoMenor, e, pasos);
    Serie(s, "MóduloCortanteActual", d.MóduloCortanteActual, e, pasos);
    Serie(s, "RelaciónAmortiguamientoActual", d.RelaciónAmortiguamientoActual, e, pasos);
    s << "}";
  }
  s << "]\n  }";
  return s.str();
}

}  // namespace lomaterra::lote
