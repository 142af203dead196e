#include "elementos/refinamiento.h"

#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "elementos/rigidez.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

using Punto = std::pair<double, double>;


}  // namespace

void IncrementeNúmeroDeElementos(Proyecto& p, Interfaz& ui) {
  MallaElementos& m = p.Malla;
  struct Control {
    bool falla;
    const char* texto;
  };
  const Control controles[] = {
      {p.TipoDeAnálisis != "F", "Ud. no está trabajando con elementos finitos"},
      {!m.NodosDefinidos, "Definacoordenadas de los nodos"},
      {p.TipoDeMaterial.empty(), "Defina características de material en la opción Parámetros y Cargas para suelos o roca"},
      {p.TipoDeMaterial == "S" && !m.CaracterísticasElásticasDadas, "Defina características elásticas"},
      {p.TipoDeMaterial == "R" && !p.EstratosCaracterizados, "Defina características de la roca en la opción Parámetros y Cargas"},
      {!m.NodosRestringidosDefinidos, "Defina los nodos con restricción"},
      {!m.ElementosDefinidos, "Defina los elementos"},
      {!m.MaterialesAsignados, "Defina el material que caracteriza los elementos"},
  };
  for (const Control& c : controles)
    if (c.falla) {
      ui.Mensaje(c.texto);
      return;
    }
  if (!ui.Pregunta(" Ud. puede incrementar el número de elementos 4 veces el número actual. ¿Desea incrementarlos ?")) {
    m.ConfirmarElementos = true;
    return;
  }
  const long NE = m.NúmeroDeElementos;
  TablaElemento& t = m.Elemento;
  for (long e = 1; e <= NE; ++e)
    if (t.NodosPorElemento.Leer(e) != 3) {
      ui.Mensaje(
          "Para que el programa ejecute esta orden, todos los elementos triangulares deben estar definidos por tres "
          "nodos. El elemento identificado con el número que está al final de este mensaje, no cumple con esta "
          "condición: " +
          std::to_string(e));
      m.ConfirmarElementos = true;
      return;
    }
  m.MallaRefinada = true;
  m.RestriccionesTrasRefinar = false;
  if ((p.Sísmico.CálculoSísmicoHecho && m.MallaRefinada &&
       !ui.Pregunta(" Ya el cálculo sísmico está heco. El número de elementos existentes se incrementará por 4. ¿Desea "
                    "incrementarlos ?")) ||
      (p.CálculoHecho && !ui.Pregunta(" Ya el cálculo  está heco. El número de elementos existentes se incrementará "
                                      "por 4. ¿Desea incrementarlos ?"))) {
    m.ConfirmarElementos = true;
    m.MallaRefinada = false;
    return;
  }

  // The new tables are built aside and take the place of the old ones only when they fit.
  std::map<Punto, long> números;  // every node met, by its exact coordinates
  long mayor = 0;
  for (long e = 1; e <= NE; ++e)
    for (int k = 1; k <= 3; ++k) mayor = std::max(mayor, std::lround(t.NúmeroElemento.Leer(e, k)));
  const long nuevos = 4 * NE;
  TablaElemento n;
  n.Redimensionar(nuevos);
  std::map<long, Punto> coordenadas;
  for (long e = 1; e <= NE; ++e) {
    long c[4];
    Punto pc[4];
    for (int k = 1; k <= 3; ++k) {
      c[k] = std::lround(t.NúmeroElemento.Leer(e, k));
      pc[k] = {t.XElemento.Leer(e, k), t.YElemento.Leer(e, k)};
      números.emplace(pc[k], c[k]);
      coordenadas[c[k]] = pc[k];
    }
    auto medio = [&](int a, int b) {
      const Punto q{(pc[a].first + pc[b].first) / 2, (pc[a].second + pc[b].second) / 2};
      auto [it, nuevo] = números.emplace(q, mayor + 1);
      if (nuevo) {
        ++mayor;
        coordenadas[mayor] = q;
      }
      return it->second;
    };
    const long m12 = medio(1, 2), m23 = medio(2, 3), m31 = medio(3, 1);
    const long hijos[4][3] = {{c[1], m12, m31}, {m12, c[2], m23}, {m12, m23, m31}, {c[3], m31, m23}};
    for (int h = 0; h < 4; ++h) {
      const long f = 4 * (e - 1) + h + 1;
      n.NodosPorElemento[f] = 3;
      n.PuntosIntegración[f] = 1;
      n.Lado12[f] = n.Lado23[f] = n.Lado31[f] = 2;
      n.MaterialDeElemento[f] = t.MaterialDeElemento.Leer(e);
      double sx = 0, sy = 0;
      for (int k = 1; k <= 3; ++k) {
        const long nodo = hijos[h][k - 1];
        const Punto& q = coordenadas[nodo];
        n.NodoDeElemento(f, k) = n.NúmeroElemento(f, k) = static_cast<double>(nodo);
        n.XElemento(f, k) = q.first;
        n.YElemento(f, k) = q.second;
        sx += q.first;
        sy += q.second;
      }
      n.XCentroElemento[f] = sx / 3;
      n.YCentroElemento[f] = sy / 3;
    }
  }
  if (nuevos > 32767 || mayor > 32767) {
    ui.Mensaje("Al dividir cada elemento en cuatro la malla tendría " + std::to_string(nuevos) + " elementos y " +
               std::to_string(mayor) +
               " nodos; el programa admite como máximo 32767 de cada uno. No se incrementó el número de elementos.");
    m.ConfirmarElementos = true;
    m.MallaRefinada = false;
    return;
  }
  m.NodosAntesDeRefinar = m.NúmeroDeNodos;
  m.ElementosAntesDeRefinar = static_cast<Entero>(NE);
  p.Sísmico.MatricesSísmicasDadas = false;
  m.XElementoAnterior = t.XElemento;
  m.YElementoAnterior = t.YElemento;
  m.ZElementoAnterior = t.ZElemento;
  m.NúmeroElementoAnterior = t.NúmeroElemento;

  // Side loads: each row becomes the two halves of its side, in the children that hold them.
  TablaCargaElemento cargas;
  long filasCarga = 0;
  if (m.CargasUniformesDefinidas) {
    const TablaCargaElemento& viejas = m.CargaUniforme;
    cargas.Redimensionar(2L * m.NúmeroCargasUniformes);
    for (long r = 1; r <= m.NúmeroCargasUniformes; ++r) {
      const long e = std::lround(viejas.ElementoDeCarga.Leer(r));
      const auto a = coordenadas.find(std::lround(viejas.NodoUnoCarga.Leer(r)));
      const auto b = coordenadas.find(std::lround(viejas.NodoDosCarga.Leer(r)));
      if (e < 1 || e > NE || a == coordenadas.end() || b == coordenadas.end()) continue;
      const auto medio = números.find({(a->second.first + b->second.first) / 2, (a->second.second + b->second.second) / 2});
      if (medio == números.end()) continue;
      for (long extremo : {a->first, b->first}) {
        for (long f = 4 * (e - 1) + 1; f <= 4 * e; ++f) {
          bool tieneExtremo = false, tieneMedio = false;
          for (int k = 1; k <= 3; ++k) {
            const long nodo = std::lround(n.NúmeroElemento(f, k));
            tieneExtremo |= nodo == extremo;
            tieneMedio |= nodo == medio->second;
          }
          if (!tieneExtremo || !tieneMedio) continue;
          ++filasCarga;
          cargas.ElementoDeCarga[filasCarga] = static_cast<double>(f);
          cargas.CargaQx[filasCarga] = viejas.CargaQx.Leer(r);
          cargas.CargaQy[filasCarga] = viejas.CargaQy.Leer(r);
          cargas.CargaQz[filasCarga] = viejas.CargaQz.Leer(r);
          cargas.NodoUnoCarga[filasCarga] = static_cast<double>(extremo == a->first ? extremo : medio->second);
          cargas.NodoDosCarga[filasCarga] = static_cast<double>(extremo == a->first ? medio->second : extremo);
          break;
        }
      }
    }
    cargas.RedimensionarConservando(filasCarga);
  }

  // Restrictions keep their coordinates.
  TablaNodoConRestricción& r = m.NodoConRestricción;
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
    const auto viejo = coordenadas.find(std::lround(r.NodoRestringido.Leer(i)));
    if (viejo == coordenadas.end()) continue;
    const auto nuevo = números.find(viejo->second);
    if (nuevo != números.end()) r.NodoRestringido[i] = static_cast<double>(nuevo->second);
  }

  const bool cambiaronNodos = mayor != m.NúmeroDeNodos;
  t = std::move(n);
  m.NúmeroDeElementos = static_cast<Entero>(nuevos);
  m.NúmeroDeNodos = static_cast<Entero>(mayor);
  m.Nodo.Redimensionar(mayor);
  for (long fila = 1; fila <= mayor; ++fila) {
    const long nodo = mayor - fila + 1;
    const auto it = coordenadas.find(nodo);
    m.Nodo.NúmeroDeNodo[fila] = static_cast<Entero>(nodo);
    if (it != coordenadas.end()) {
      m.Nodo.XNodo[fila] = it->second.first;
      m.Nodo.YNodo[fila] = it->second.second;
    }
  }
  if (m.CargasUniformesDefinidas) {
    m.CargaUniforme = std::move(cargas);
    m.NúmeroCargasUniformes = static_cast<Entero>(filasCarga);
    m.NúmeroCargasRefinadas = static_cast<Entero>(filasCarga);
  }
  for (long e = 1; e <= nuevos; ++e) {
    const auto ys = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, t.XCentroElemento[e]);
    if (ys && t.YCentroElemento[e] > *ys) ui.Mensaje("La ordenada del elemento queda por encima del talud, y ésto no es correcto. Revise");
  }
  m.ConfirmarElementos = true;
  m.RestriccionesTrasRefinar = false;
  m.NúmeroAnteriorDeElementos = m.NúmeroDeElementos;
  if (cambiaronNodos) {
    p.CálculoHecho = false;
    p.Sísmico.CálculoSísmicoHecho = p.Sísmico.SismoCalculado = false;
  }
  p.DatosGuardados = false;
  ui.Mensaje(
      "Debido al incremento en el número de elementos para el análisis, vaya a la sesión 'Nodos con restricción' y "
      "revise los nuevos  números asignados por el programa a los nodos con restricción que ya se habían insertado "
      "(por lo general estos nodos se ubican a una misma cota (ordenada) o en línea vertical (abscisa). Tome nota, en "
      "que ordenada y en que abscisa están ubicados). Luego vaya a la sesión 'Coordenadas de los nodos' y tome nota "
      "de los nodos que tienen la misma ordenada (línea horizontal) ó la misma abscisa (línea vertical) de los nodos "
      "con restricción ya existentes. Luego vaya nuevamente a la sesión 'Nodos con restricción' e inserte los nuevos "
      "nodos con restricción generados por el programa.");
}

}  // namespace lomaterra
