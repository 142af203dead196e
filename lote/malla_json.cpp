#include "malla_json.h"

#include <sstream>

#include "elementos/rigidez.h"
#include "proyecto/proyecto.h"
#include "resumen.h"

namespace lomaterra::lote {

std::string MallaComoJson(const Proyecto& p, Interfaz& ui, bool rigidez) {
  const MallaElementos& m = p.Malla;
  std::ostringstream s;
  s << "{\n  \"nodos\": [";
  for (long f = 1; f <= m.NúmeroDeNodos; ++f)
    s << (f > 1 ? ",\n    " : "\n    ") << "{\"nodo\": " << m.Nodo.NúmeroDeNodo.Leer(f) << ", \"x\": " << NúmeroJson(m.Nodo.XNodo.Leer(f))
      << ", \"y\": " << NúmeroJson(m.Nodo.YNodo.Leer(f)) << ", \"z\": " << NúmeroJson(m.Nodo.ZNodo.Leer(f)) << "}";
  s << "],\n  \"elementos\": [";
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    s << (e > 1 ? ",\n    " : "\n    ") << "{\"nodos\": [";
    for (int k = 1; k <= m.Elemento.NodosPorElemento.Leer(e); ++k)
      s << (k > 1 ? ", " : "") << NúmeroJson(m.Elemento.NodoDeElemento.Leer(e, k));
    s << "], \"puntos\": " << NúmeroJson(m.Elemento.PuntosIntegración.Leer(e)) << ", \"lados\": ["
      << NúmeroJson(m.Elemento.Lado12.Leer(e)) << ", " << NúmeroJson(m.Elemento.Lado23.Leer(e)) << ", "
      << NúmeroJson(m.Elemento.Lado31.Leer(e)) << "], \"material\": " << NúmeroJson(m.Elemento.MaterialDeElemento.Leer(e)) << "}";
  }
  s << "],\n  \"restricciones\": [";
  const auto& r = m.NodoConRestricción;
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i)
    s << (i > 1 ? ",\n    " : "\n    ") << "{\"nodo\": " << NúmeroJson(r.NodoRestringido.Leer(i)) << ", \"x\": " << TextoJson(r.RestricciónX.Leer(i))
      << ", \"y\": " << TextoJson(r.RestricciónY.Leer(i)) << ", \"resorteX\": " << NúmeroJson(r.ResorteX.Leer(i))
      << ", \"resorteY\": " << NúmeroJson(r.ResorteY.Leer(i)) << "}";
  s << "],\n  \"cargas\": [";
  const auto& c = m.CargaUniforme;
  for (long i = 1; i <= m.NúmeroCargasUniformes; ++i)
    s << (i > 1 ? ",\n    " : "\n    ") << "{\"elemento\": " << NúmeroJson(c.ElementoDeCarga.Leer(i)) << ", \"qx\": " << NúmeroJson(c.CargaQx.Leer(i))
      << ", \"qy\": " << NúmeroJson(c.CargaQy.Leer(i)) << ", \"nodo1\": " << NúmeroJson(c.NodoUnoCarga.Leer(i))
      << ", \"nodo2\": " << NúmeroJson(c.NodoDosCarga.Leer(i)) << "}";
  s << "]";
  if (rigidez) {
    Proyecto q = p;
    CálculoElementos cálculo;
    s << ",\n  \"rigidez\": ";
    if (Elementotriangular(q, ui, cálculo)) {
      s << "{\n    \"diagonal\": [";
      for (long d = 1; d <= cálculo.MatrizRigidez->Tamaño(); ++d)
        s << (d > 1 ? ", " : "") << NúmeroJson(cálculo.MatrizRigidez->Diagonal(d));
      s << "],\n    \"VectorDeCargas\": [";
      for (long d = 1; d <= cálculo.MatrizRigidez->Tamaño(); ++d) s << (d > 1 ? ", " : "") << NúmeroJson(q.Malla.VectorDeCargas.Leer(d));
      s << "]\n  }";
    } else {
      s << "null";
    }
  }
  s << "\n}\n";
  return s.str();
}

}  // namespace lomaterra::lote
