// Body "F". As in body "T", a value is known only by its place: every condition below is tested
// the same way by the writer and by the reader.
#include "proyecto/archivo_elementos.h"

#include <cmath>

#include "proyecto/archivo.h"

namespace lomaterra {

namespace {

Entero Cuenta(LectorSecuencial& l) {
  const Entero n = l.LeerEntero();
  if (n < 0) throw ErrorLectura("cuenta negativa");
  return n;
}

void Tamaño(long filas, long columnas) {
  if (filas * columnas > 40000000L) throw ErrorLectura("tabla demasiado grande");
}

double Casilla(const std::vector<double>& v, std::size_t i) { return i < v.size() ? v[i] : 0.0; }

const Entero kColumnasHistoriaNodo = 6, kColumnasHistoria4 = 4, kColumnasHistoria3 = 3;

void EscribirXY(EscritorSecuencial& e, const TablaXY& t, Entero n) {
  e.Entero(n).Fin();
  for (long i = 1; i <= n; ++i) e.Real(t.X.Leer(i)).Real(t.Y.Leer(i)).Fin();
}

void LeerXY(LectorSecuencial& l, TablaXY& t, Entero& n) {
  n = Cuenta(l);
  t.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    t.X[i] = l.LeerReal();
    t.Y[i] = l.LeerReal();
  }
}

// The walk of the rows of one stratum, shared by the writer and the reader.
template <typename F>
void CamposEstrato(const std::string& material, F campo) {
  if (material == "R") {
    for (auto c : {&TablaEstrato::m_intacta, &TablaEstrato::Parámetro_GSI, &TablaEstrato::m_macizo, &TablaEstrato::s_macizo,
                   &TablaEstrato::PesoUnitarioHúmedo, &TablaEstrato::PesoUnitarioSaturado, &TablaEstrato::C_Simple,
                   &TablaEstrato::VelocidadCorte, &TablaEstrato::VelocidadLongitudinal, &TablaEstrato::Poisson,
                   &TablaEstrato::Viscosidad, &TablaEstrato::ResistenciaMacizo, &TablaEstrato::ModuloMacizo,
                   &TablaEstrato::Cohesión, &TablaEstrato::Fricción})
      campo(c);
  } else if (material == "S") {
    for (auto c : {&TablaEstrato::Cohesión, &TablaEstrato::Fricción, &TablaEstrato::PesoUnitarioHúmedo,
                   &TablaEstrato::PesoUnitarioSaturado})
      campo(c);
    campo(nullptr);  // TipoEstrato, an integer
    for (auto c : {&TablaEstrato::ParámetroPresión, &TablaEstrato::CoeficienteConsolidaciónVertical,
                   &TablaEstrato::TiempoDeConstrucción})
      campo(c);
  }
}

long ÚltimoPaso(const MallaElementos& m) { return m.NúmeroDeIteración > 0 ? m.NúmeroDeIteración : 1; }

void Principales(MallaElementos& m, long e, long i) {
  const double sx = m.EsfuerzoX(e, i), sy = m.EsfuerzoY(e, i), txy = m.EsfuerzoXY(e, i);
  if (sx == sy && txy == sx) {
    m.EsfuerzoPrincipalMayor(e, i) = sx;
    m.EsfuerzoPrincipalMenor(e, i) = sy;
    return;
  }
  const double c = (sx + sy) / 2, r = std::sqrt(txy * txy + ((sy - sx) / 2) * ((sy - sx) / 2));
  m.EsfuerzoPrincipalMayor(e, i) = std::max(c + r, c - r);
  m.EsfuerzoPrincipalMenor(e, i) = std::min(c + r, c - r);
}

long NodoDeLista(const MallaElementos& m, long e, int k) { return std::lround(m.Elemento.NodoDeElemento.Leer(e, k)); }

}  // namespace

void EscribirCuerpoF(EscritorSecuencial& e, const Proyecto& p) {
  const MallaElementos& m = p.Malla;
  const DatosSísmicos& s = p.Sísmico;
  const TablaParámetrosIniciales& pi = p.ParámetrosIniciales;
  const bool roca = p.TipoDeMaterial == "R", suelo = p.TipoDeMaterial == "S";
  const long NE = m.NúmeroDeElementos, NN = m.NúmeroDeNodos;

  e.Texto(p.TipoDeMaterial).Fin();
  if (roca) e.Texto(p.Roca.TipoDeObra).Fin();
  e.Entero(p.NúmeroEstratos).Entero(MayorDeLista(p.PuntosEstrato, p.NúmeroEstratos)).Entero(p.NúmeroEstratosCaracterizados).Fin();
  for (long st = 1; st <= p.NúmeroEstratos; ++st) {
    const long puntos = p.PuntosEstrato.Leer(st);
    e.Entero(puntos).Fin();
    CamposEstrato(p.TipoDeMaterial, [&](Tabla<double> TablaEstrato::*c) {
      if (c) e.Real((p.Estrato.*c).Leer(st)).Fin();
      else e.Entero(p.Estrato.TipoEstrato.Leer(st)).Fin();
    });
    for (long j = 1; j <= puntos; ++j) e.Real(p.XEstrato.Leer(st, j)).Real(p.YEstrato.Leer(st, j)).Fin();
  }
  if (roca) {
    e.Real(p.Roca.FactorPerturbación).Fin();
    e.Real(p.Roca.AlturaH).Fin();
    e.Entero(p.Roca.MétodoModuloCortante).Real(p.Roca.PeríodoFundamental).Fin();
  }
  EscribirXY(e, p.CoordenadasTalud, p.NúmeroPuntosTalud);
  EscribirXY(e, p.CoordenadasFreático, p.NúmeroPuntosFreático);

  // Mesh
  e.Bandera(m.NodosDefinidos).Fin();
  if (m.NodosDefinidos) {
    e.Entero(NN).Fin();
    for (long i = 1; i <= NN; ++i)
      e.Entero(m.Nodo.NúmeroDeNodo.Leer(i)).Real(m.Nodo.XNodo.Leer(i)).Real(m.Nodo.YNodo.Leer(i)).Real(m.Nodo.ZNodo.Leer(i)).Fin();
  }
  e.Entero(NE).Fin();
  if (NE > 0) {
    e.Entero(MayorDeLista(m.Elemento.NodosPorElemento, NE)).Entero(m.NúmeroAnteriorDeElementos).Fin();
    for (long el = 1; el <= NE; ++el) {
      const Entero nodos = m.Elemento.NodosPorElemento.Leer(el);
      e.Entero(nodos).Real(m.Elemento.PuntosIntegración.Leer(el)).Real(m.Elemento.Lado12.Leer(el))
          .Real(m.Elemento.Lado23.Leer(el)).Real(m.Elemento.Lado31.Leer(el)).Fin();
      for (long k = 1; k <= nodos; ++k) e.Real(m.Elemento.NodoDeElemento.Leer(el, k)).Fin();
    }
  }
  e.Bandera(m.CaracterísticasElásticasDadas).Fin();
  if (m.CaracterísticasElásticasDadas && suelo)
    for (long st = 1; st <= p.NúmeroEstratos; ++st) {
      e.Real(m.MóduloElasticidad.Leer(st)).Fin();
      e.Real(m.CoeficientePoisson.Leer(st)).Fin();
      e.Real(p.Estrato.Viscosidad.Leer(st)).Fin();
      e.Real(p.Estrato.CoeficienteKo.Leer(st)).Fin();
    }
  e.Real(m.IntervaloDeTiempo).Fin();
  e.Entero(m.TipoEsfuerzo).Fin();
  e.Real(m.EspesorAnálisis).Fin();
  e.Bandera(m.MaterialesAsignados).Fin();
  if (m.MaterialesAsignados)
    for (long el = 1; el <= NE; ++el) e.Real(m.Elemento.MaterialDeElemento.Leer(el)).Fin();
  e.Bandera(m.NodosRestringidosDefinidos).Fin();
  if (m.NodosRestringidosDefinidos) {
    const TablaNodoConRestricción& r = m.NodoConRestricción;
    e.Entero(m.NúmeroNodosConRestricción).Fin();
    for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
      e.Real(r.NodoRestringido.Leer(i)).Texto(r.RestricciónX.Leer(i)).Texto(r.RestricciónY.Leer(i)).Texto(r.RestricciónZ.Leer(i)).Fin();
      e.Real(r.ResorteX.Leer(i)).Real(r.ResorteY.Leer(i)).Real(r.ResorteZ.Leer(i)).Fin();
    }
  }
  e.Bandera(m.CargasUniformesDefinidas).Fin();
  if (m.CargasUniformesDefinidas) {
    const TablaCargaElemento& c = m.CargaUniforme;
    e.Entero(m.NúmeroCargasUniformes).Fin();
    for (long i = 1; i <= m.NúmeroCargasUniformes; ++i) {
      e.Real(c.ElementoDeCarga.Leer(i)).Fin();
      e.Real(c.CargaQx.Leer(i)).Real(c.CargaQy.Leer(i)).Real(c.CargaQz.Leer(i)).Fin();
      e.Real(c.CargaReservada.Leer(i)).Fin();
      e.Real(c.NodoUnoCarga.Leer(i)).Real(c.NodoDosCarga.Leer(i));
      for (long k = 1; k <= 3; ++k) e.Real(c.ValoresReservados.Leer(i, k));
      e.Fin();
      for (long k = 4; k <= 9; ++k) e.Real(c.ValoresReservados.Leer(i, k));
      e.Fin();
      e.Real(c.ValoresReservados.Leer(i, 10)).Fin();
    }
  }
  e.Texto(m.TipoDeElemento).Fin();
  e.Real(pi.CoeficienteSísmicoHorizontal).Real(pi.CoeficienteSísmicoVertical).Fin();
  e.Bandera(p.NúmeroPuntosFalla > 0).Fin();
  e.Entero(p.NúmeroPuntosFalla).Fin();
  if (p.NúmeroPuntosFalla > 1)
    for (long i = 1; i <= p.NúmeroPuntosFalla; ++i)
      e.Real(static_cast<double>(i)).Real(p.CoordenadasFalla.X.Leer(i)).Real(p.CoordenadasFalla.Y.Leer(i)).Fin();

  // Stresses and displacements
  e.Letra(p.CálculoHecho).Fin();
  if (p.CálculoHecho) {
    const long último = ÚltimoPaso(m);
    e.Entero(m.NúmeroDeIteración).Fin();
    for (long el = 1; el <= NE; ++el) {
      e.Real(m.Elemento.XCentroElemento.Leer(el)).Real(m.Elemento.YCentroElemento.Leer(el)).Fin();
      for (long paso : {1L, último})
        e.Real(m.EsfuerzoX.Leer(el, paso)).Real(m.EsfuerzoY.Leer(el, paso)).Real(m.EsfuerzoXY.Leer(el, paso)).Fin();
      for (int k = 1; k <= m.Elemento.NodosPorElemento.Leer(el); ++k) {
        const long n = NodoDeLista(m, el, k);
        for (long paso : {1L, último})
          e.Real(m.Desplazamientos.Leer(2 * n - 1, paso)).Real(m.Desplazamientos.Leer(2 * n, paso)).Fin();
      }
    }
    e.Real(m.FSMínimo).Real(m.FSPromedio).Fin();
  }
  e.Letra(m.DesplazamientosHechos).Fin();
  for (long el = 1; el <= NE; ++el) e.Real(m.Elemento.XCentroElemento.Leer(el)).Real(m.Elemento.YCentroElemento.Leer(el)).Fin();
  for (long el = 1; el <= NE; ++el)
    for (int k = 1; k <= m.Elemento.NodosPorElemento.Leer(el); ++k)
      e.Real(m.Elemento.NúmeroElemento.Leer(el, k)).Real(m.Elemento.XElemento.Leer(el, k)).Real(m.Elemento.YElemento.Leer(el, k)).Fin();
  if (p.NúmeroPuntosFreático > 0 && p.CálculoHecho && !s.CálculoSísmicoHecho)
    for (long el = 1; el <= NE; ++el) e.Real(m.ProfundidadFreático.Leer(el)).Fin();

  // Seismic data, carried as they stand
  e.Bandera(s.ParámetrosSísmicosDados).Fin();
  if (s.ParámetrosSísmicosDados) {
    for (long st = 1; st <= p.NúmeroEstratos; ++st) {
      for (const Tabla<double>* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                                     &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
        e.Real(t->Leer(st)).Fin();
      e.Real(s.Determinante.Leer(st)).Fin();
    }
    // A soil carries here the choice of the maximum shear modulus and the height of the section
    // from the seismic strata screen; a rock, its own method and period.
    e.Entero(roca ? p.Roca.MétodoModuloCortante : s.MétodoGmax).Fin();
    e.Real(roca ? p.Roca.PeríodoFundamental : s.AlturaPresa).Fin();
  }
  e.Bandera(s.RegistroDado).Fin();
  if (s.RegistroDado) {
    e.Entero(s.NúmeroPuntosRegistro).Fin();
    for (long t = 1; t <= s.NúmeroPuntosRegistro; ++t)
      e.Real(s.TiempoRegistro.Leer(t)).Real(s.AceleraciónHorizontal.Leer(t)).Real(s.AceleraciónVertical.Leer(t)).Fin();
  }
  e.Bandera(s.SismoIntegrado).Fin();
  e.Real(s.ResultadoSísmico1).Real(s.ResultadoSísmico2).Fin();
  e.Entero(s.PasosSísmicos).Fin();
  e.Real(s.IntervaloTiempoSísmico).Entero(s.ModoSísmico).Fin();
  if (s.SismoCalculado && s.CálculoSísmicoHecho) {
    std::size_t a = 0, b = 0, c = 0;
    for (long t = 1; t <= s.NúmeroPuntosRegistro; ++t) {
      for (long n = 1; n <= NN; ++n) {
        for (int k = 0; k < kColumnasHistoriaNodo; ++k) e.Real(Casilla(s.HistoriaNodos, a++));
        e.Fin();
      }
      for (long el = 1; el <= NE; ++el) {
        for (int k = 0; k < kColumnasHistoria4; ++k) e.Real(Casilla(s.HistoriaElementos4, b++));
        e.Fin();
        for (int k = 0; k < kColumnasHistoria3; ++k) e.Real(Casilla(s.HistoriaElementos3, c++));
        e.Fin();
      }
    }
    e.Real(s.FactorSísmicoMínimo).Entero(s.PasoFactorSísmico).Entero(s.ElementoFactorSísmico).Fin();
  }
  const long g = s.NúmeroGradosLibertad;
  e.Bandera(s.MatricesSísmicasDadas).Fin();
  if (s.MatricesSísmicasDadas) {
    e.Entero(g).Fin();
    if (g > 1) e.Entero(s.AnchoBanda1).Entero(s.AnchoBanda2).Fin();
    // One row an entry (i, j), row by row: stiffness, mass and damping.
    for (long i = 1; i <= g; ++i)
      for (long j = 1; j <= g; ++j)
        e.Real(s.MatrizRigidezCondensada.Leer(i, j)).Real(s.MatrizMasaCondensada.Leer(i, j))
            .Real(s.MatrizAmortiguamientoCondensada.Leer(i, j)).Fin();
    if (g > 1) {
      for (long k = 0; k < s.AnchoBanda1; ++k) e.Real(Casilla(s.Banda1, static_cast<std::size_t>(k))).Fin();
      for (long k = 0; k < s.AnchoBanda2; ++k) e.Real(Casilla(s.Banda2, static_cast<std::size_t>(k))).Fin();
    }
  }
  e.Bandera(s.FrecuenciasDadas).Fin();
  if (s.FrecuenciasDadas)
    for (long k = 1; k <= g; ++k) e.Real(s.Frecuencia.Leer(k)).Fin();
  e.Bandera(s.FormasModalesDadas).Fin();
  if (s.FormasModalesDadas)
    for (long f = 1; f <= g; ++f)
      for (long k = 1; k <= g; k += 2) {
        e.Real(s.MatrizFormasModales.Leer(f, k));
        if (k + 1 <= g) e.Real(s.MatrizFormasModales.Leer(f, k + 1));
        e.Fin();
      }

  // Limit-equilibrium data used by the factor of safety from the stresses
  const TablaCargaUniforme& cu = p.CargaUniforme;
  e.Entero(p.NúmeroCargasUniformes).Fin();
  for (long i = 1; i <= p.NúmeroCargasUniformes; ++i)
    e.Real(cu.xo.Leer(i)).Real(cu.yo.Leer(i)).Real(cu.xf.Leer(i)).Real(cu.yf.Leer(i)).Real(cu.qx.Leer(i)).Real(cu.qy.Leer(i)).Fin();
  const TablaCargaPuntual& cp = p.CargaPuntual;
  e.Entero(p.NúmeroCargasPuntuales).Fin();
  for (long i = 1; i <= p.NúmeroCargasPuntuales; ++i)
    e.Real(cp.Xpuntual.Leer(i)).Real(cp.Ypuntual.Leer(i)).Real(cp.Px.Leer(i)).Real(cp.Py.Leer(i)).Fin();
  e.Bandera(p.ParámetrosInicialesDados).Fin();
  if (p.ParámetrosInicialesDados) {
    e.Entero(pi.MétodoDeCálculo).Fin();
    for (double x : {pi.FSInicial, pi.Radio, pi.CentroX, pi.CentroY, pi.NúmeroDovelas, m.FSFinalElementos}) e.Real(x).Fin();
  }
  e.Real(pi.CoeficienteSísmicoHorizontal).Fin();
  e.Real(pi.CoeficienteSísmicoVertical).Fin();
  e.Entero(p.NúmeroTramosFalla).Fin();
  for (long i = 1; i <= p.NúmeroTramosFalla; ++i)
    e.Real(p.TramoFalla.PuntoInicial.Leer(i)).Real(p.TramoFalla.PuntoFinal.Leer(i)).Texto(p.TramoFalla.TipoUnión.Leer(i)).Fin();
}

void LeerCuerpoF(LectorSecuencial& l, Proyecto& p) {
  MallaElementos& m = p.Malla;
  DatosSísmicos& s = p.Sísmico;
  TablaParámetrosIniciales& pi = p.ParámetrosIniciales;
  p.TipoDeMaterial = l.LeerTexto();
  const bool roca = p.TipoDeMaterial == "R", suelo = p.TipoDeMaterial == "S";
  if (roca) p.Roca.TipoDeObra = l.LeerTexto();

  p.NúmeroEstratos = Cuenta(l);
  const Entero mayor = Cuenta(l);
  p.NúmeroEstratosCaracterizados = l.LeerEntero();
  const long ne = p.NúmeroEstratos;
  Tamaño(ne, mayor);
  p.PuntosEstrato.Redimensionar(ne);
  p.XEstrato.Redimensionar(ne, mayor);
  p.YEstrato.Redimensionar(ne, mayor);
  p.Estrato.RedimensionarConservando(ne);
  for (long st = 1; st <= ne; ++st) {
    const Entero puntos = Cuenta(l);
    if (puntos > mayor) throw ErrorLectura("un estrato tiene más puntos que el mayor declarado");
    p.PuntosEstrato[st] = puntos;
    CamposEstrato(p.TipoDeMaterial, [&](Tabla<double> TablaEstrato::*c) {
      if (c) (p.Estrato.*c)[st] = l.LeerReal();
      else p.Estrato.TipoEstrato[st] = l.LeerEntero();
    });
    if (roca) {
      const double nu = p.Estrato.Poisson[st];
      p.Estrato.CoeficienteKo[st] = nu != 1 ? nu / (1 - nu) : 0;
    }
    for (long j = 1; j <= puntos; ++j) {
      p.XEstrato(st, j) = l.LeerReal();
      p.YEstrato(st, j) = l.LeerReal();
    }
  }
  p.EstratosCaracterizados = true;
  if (roca) {
    p.Roca.FactorPerturbación = l.LeerReal();
    p.Roca.AlturaH = l.LeerReal();
    p.Roca.MétodoModuloCortante = l.LeerEntero();
    p.Roca.PeríodoFundamental = l.LeerReal();
  }
  LeerXY(l, p.CoordenadasTalud, p.NúmeroPuntosTalud);
  LeerXY(l, p.CoordenadasFreático, p.NúmeroPuntosFreático);

  l.LeerBandera(m.NodosDefinidos);
  if (m.NodosDefinidos) {
    m.NúmeroDeNodos = Cuenta(l);
    m.Nodo.Redimensionar(m.NúmeroDeNodos);
    for (long i = 1; i <= m.NúmeroDeNodos; ++i) {
      m.Nodo.NúmeroDeNodo[i] = l.LeerEntero();
      m.Nodo.XNodo[i] = l.LeerReal();
      m.Nodo.YNodo[i] = l.LeerReal();
      m.Nodo.ZNodo[i] = l.LeerReal();
    }
  }
  m.NúmeroDeElementos = Cuenta(l);
  const long NE = m.NúmeroDeElementos;
  m.Elemento.Redimensionar(NE);
  if (NE > 0) {
    if (Cuenta(l) > 6) throw ErrorLectura("un elemento con más de seis nodos");
    m.NúmeroAnteriorDeElementos = l.LeerEntero();
    for (long el = 1; el <= NE; ++el) {
      const Entero nodos = Cuenta(l);
      if (nodos > 6) throw ErrorLectura("un elemento con más de seis nodos");
      m.Elemento.NodosPorElemento[el] = nodos;
      m.Elemento.PuntosIntegración[el] = l.LeerReal();
      m.Elemento.Lado12[el] = l.LeerReal();
      m.Elemento.Lado23[el] = l.LeerReal();
      m.Elemento.Lado31[el] = l.LeerReal();
      for (long k = 1; k <= nodos; ++k) m.Elemento.NodoDeElemento(el, k) = l.LeerReal();
    }
    m.ElementosDefinidos = true;
  }
  l.LeerBandera(m.CaracterísticasElásticasDadas);
  if (m.CaracterísticasElásticasDadas && suelo) {
    m.MóduloElasticidad.Redimensionar(ne);
    m.CoeficientePoisson.Redimensionar(ne);
    for (long st = 1; st <= ne; ++st) {
      m.MóduloElasticidad[st] = l.LeerReal();
      m.CoeficientePoisson[st] = l.LeerReal();
      p.Estrato.Viscosidad[st] = l.LeerReal();
      p.Estrato.CoeficienteKo[st] = l.LeerReal();
    }
  }
  m.IntervaloDeTiempo = l.LeerReal();
  m.TipoEsfuerzo = l.LeerEntero();
  m.EspesorAnálisis = l.LeerReal();
  l.LeerBandera(m.MaterialesAsignados);
  if (m.MaterialesAsignados)
    for (long el = 1; el <= NE; ++el) m.Elemento.MaterialDeElemento[el] = l.LeerReal();
  l.LeerBandera(m.NodosRestringidosDefinidos);
  if (m.NodosRestringidosDefinidos) {
    m.NúmeroNodosConRestricción = Cuenta(l);
    TablaNodoConRestricción& r = m.NodoConRestricción;
    r.Redimensionar(m.NúmeroNodosConRestricción);
    for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
      r.NodoRestringido[i] = l.LeerReal();
      r.RestricciónX[i] = l.LeerTexto();
      r.RestricciónY[i] = l.LeerTexto();
      r.RestricciónZ[i] = l.LeerTexto();
      r.ResorteX[i] = l.LeerReal();
      r.ResorteY[i] = l.LeerReal();
      r.ResorteZ[i] = l.LeerReal();
    }
  }
  l.LeerBandera(m.CargasUniformesDefinidas);
  if (m.CargasUniformesDefinidas) {
    m.NúmeroCargasUniformes = Cuenta(l);
    TablaCargaElemento& c = m.CargaUniforme;
    c.Redimensionar(m.NúmeroCargasUniformes);
    for (long i = 1; i <= m.NúmeroCargasUniformes; ++i) {
      c.ElementoDeCarga[i] = l.LeerReal();
      c.CargaQx[i] = l.LeerReal();
      c.CargaQy[i] = l.LeerReal();
      c.CargaQz[i] = l.LeerReal();
      c.CargaReservada[i] = l.LeerReal();
      c.NodoUnoCarga[i] = l.LeerReal();
      c.NodoDosCarga[i] = l.LeerReal();
      for (long k = 1; k <= 10; ++k) c.ValoresReservados(i, k) = l.LeerReal();
    }
  }
  m.TipoDeElemento = l.LeerTexto();
  pi.CoeficienteSísmicoHorizontal = l.LeerReal();
  pi.CoeficienteSísmicoVertical = l.LeerReal();
  bool puntosFalla = false;
  l.LeerBandera(puntosFalla);
  const Entero nf = Cuenta(l);
  if (nf > 1) {
    p.CoordenadasFalla.Redimensionar(nf);
    for (long i = 1; i <= nf; ++i) {
      l.LeerReal();
      p.CoordenadasFalla.X[i] = l.LeerReal();
      p.CoordenadasFalla.Y[i] = l.LeerReal();
    }
  }
  p.NúmeroPuntosFalla = nf;

  bool calculado = false;
  l.LeerLetra(calculado);
  p.CálculoHecho = calculado;
  if (p.CálculoHecho) {
    m.NúmeroDeIteración = l.LeerEntero();
    const long último = ÚltimoPaso(m);
    Tamaño(NE, último);
    for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor, &m.EsfuerzoPrincipalMenor})
      t->Redimensionar(NE, último);
    m.Desplazamientos.Redimensionar(2L * m.NúmeroDeNodos, último);
    for (long el = 1; el <= NE; ++el) {
      m.Elemento.XCentroElemento[el] = l.LeerReal();
      m.Elemento.YCentroElemento[el] = l.LeerReal();
      for (long paso : {1L, último}) {
        m.EsfuerzoX(el, paso) = l.LeerReal();
        m.EsfuerzoY(el, paso) = l.LeerReal();
        m.EsfuerzoXY(el, paso) = l.LeerReal();
        Principales(m, el, paso);
      }
      for (int k = 1; k <= m.Elemento.NodosPorElemento[el]; ++k) {
        const long n = NodoDeLista(m, el, k);
        if (n < 1 || n > m.NúmeroDeNodos) throw ErrorLectura("un elemento nombra un nodo que no existe");
        for (long paso : {1L, último}) {
          m.Desplazamientos(2 * n - 1, paso) = l.LeerReal();
          m.Desplazamientos(2 * n, paso) = l.LeerReal();
        }
      }
    }
    m.FSMínimo = l.LeerReal();
    m.FSPromedio = l.LeerReal();
  }
  l.LeerLetra(m.DesplazamientosHechos);
  for (long el = 1; el <= NE; ++el) {
    m.Elemento.XCentroElemento[el] = l.LeerReal();
    m.Elemento.YCentroElemento[el] = l.LeerReal();
  }
  for (long el = 1; el <= NE; ++el)
    for (int k = 1; k <= m.Elemento.NodosPorElemento[el]; ++k) {
      m.Elemento.NúmeroElemento(el, k) = l.LeerReal();
      m.Elemento.XElemento(el, k) = l.LeerReal();
      m.Elemento.YElemento(el, k) = l.LeerReal();
    }
  if (p.NúmeroPuntosFreático > 0 && p.CálculoHecho && !s.CálculoSísmicoHecho) {
    m.ProfundidadFreático.Redimensionar(NE);
    for (long el = 1; el <= NE; ++el) m.ProfundidadFreático[el] = l.LeerReal();
  }

  l.LeerBandera(s.ParámetrosSísmicosDados);
  if (s.ParámetrosSísmicosDados) {
    for (Tabla<double>* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                             &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
      t->Redimensionar(ne);
    s.Determinante.Redimensionar(ne);
    for (long st = 1; st <= ne; ++st) {
      for (Tabla<double>* t : {&s.VelocidadOndaCorte, &s.DistorsiónCortante, &s.RelaciónVacíos,
                               &s.ResistenciaNoDrenada, &s.ÍndicePlástico, &s.OCR})
        (*t)[st] = l.LeerReal();
      s.Determinante[st] = static_cast<DatosSísmicos::Entero>(l.LeerEntero());
    }
    if (roca) {
      p.Roca.MétodoModuloCortante = l.LeerEntero();
      p.Roca.PeríodoFundamental = l.LeerReal();
    } else {
      s.MétodoGmax = l.LeerEntero();
      s.AlturaPresa = l.LeerReal();
    }
  }
  l.LeerBandera(s.RegistroDado);
  if (s.RegistroDado) {
    s.NúmeroPuntosRegistro = Cuenta(l);
    for (Tabla<double>* c : {&s.TiempoRegistro, &s.AceleraciónHorizontal, &s.AceleraciónVertical})
      c->Redimensionar(s.NúmeroPuntosRegistro);
    for (long t = 1; t <= s.NúmeroPuntosRegistro; ++t)
      for (Tabla<double>* c : {&s.TiempoRegistro, &s.AceleraciónHorizontal, &s.AceleraciónVertical})
        (*c)[t] = l.LeerReal();
  }
  l.LeerBandera(s.SismoIntegrado);
  s.ResultadoSísmico1 = l.LeerReal();
  s.ResultadoSísmico2 = l.LeerReal();
  s.PasosSísmicos = l.LeerEntero();
  s.IntervaloTiempoSísmico = l.LeerReal();
  s.ModoSísmico = l.LeerEntero();
  if (s.SismoCalculado && s.CálculoSísmicoHecho) {
    const long pasos = s.NúmeroPuntosRegistro;
    Tamaño(pasos, (m.NúmeroDeNodos * 6L + NE * 7L));
    s.HistoriaNodos.assign(static_cast<std::size_t>(pasos * m.NúmeroDeNodos * kColumnasHistoriaNodo), 0.0);
    s.HistoriaElementos4.assign(static_cast<std::size_t>(pasos * NE * kColumnasHistoria4), 0.0);
    s.HistoriaElementos3.assign(static_cast<std::size_t>(pasos * NE * kColumnasHistoria3), 0.0);
    std::size_t a = 0, b = 0, c = 0;
    for (long t = 1; t <= pasos; ++t) {
      for (long n = 1; n <= m.NúmeroDeNodos; ++n)
        for (int k = 0; k < kColumnasHistoriaNodo; ++k) s.HistoriaNodos[a++] = l.LeerReal();
      for (long el = 1; el <= NE; ++el) {
        for (int k = 0; k < kColumnasHistoria4; ++k) s.HistoriaElementos4[b++] = l.LeerReal();
        for (int k = 0; k < kColumnasHistoria3; ++k) s.HistoriaElementos3[c++] = l.LeerReal();
      }
    }
    s.FactorSísmicoMínimo = l.LeerReal();
    s.PasoFactorSísmico = l.LeerEntero();
    s.ElementoFactorSísmico = l.LeerEntero();
  }
  for (long el = 1; el <= m.ProfundidadFreático.Tamaño(); ++el)
    if (m.ProfundidadFreático[el] > 0) {
      m.PresionesFreáticasPresentes = true;
      break;
    }
  l.LeerBandera(s.MatricesSísmicasDadas);
  if (s.MatricesSísmicasDadas) {
    s.NúmeroGradosLibertad = Cuenta(l);
    const long g = s.NúmeroGradosLibertad;
    Tamaño(g * 3, g);
    if (g > 1) {
      s.AnchoBanda1 = Cuenta(l);
      s.AnchoBanda2 = Cuenta(l);
    }
    for (Tabla2<double>* t : {&s.MatrizRigidezCondensada, &s.MatrizMasaCondensada, &s.MatrizAmortiguamientoCondensada})
      t->Redimensionar(g, g);
    for (long i = 1; i <= g; ++i)
      for (long j = 1; j <= g; ++j)
        for (Tabla2<double>* t : {&s.MatrizRigidezCondensada, &s.MatrizMasaCondensada, &s.MatrizAmortiguamientoCondensada})
          (*t)(i, j) = l.LeerReal();
    if (g > 1) {
      s.Banda1.resize(static_cast<std::size_t>(s.AnchoBanda1));
      for (double& x : s.Banda1) x = l.LeerReal();
      s.Banda2.resize(static_cast<std::size_t>(s.AnchoBanda2));
      for (double& x : s.Banda2) x = l.LeerReal();
    }
  }
  const long g = s.NúmeroGradosLibertad;
  l.LeerBandera(s.FrecuenciasDadas);
  if (s.FrecuenciasDadas) {
    s.Frecuencia.Redimensionar(g);
    s.NúmeroFrecuencias = static_cast<DatosSísmicos::Entero>(g);
    for (long k = 1; k <= g; ++k) s.Frecuencia[k] = l.LeerReal();
  }
  l.LeerBandera(s.FormasModalesDadas);
  if (s.FormasModalesDadas) {
    Tamaño(g, g);
    s.MatrizFormasModales.Redimensionar(g, g);
    for (long f = 1; f <= g; ++f)
      for (long k = 1; k <= g; ++k) s.MatrizFormasModales(f, k) = l.LeerReal();
  }

  p.NúmeroCargasUniformes = Cuenta(l);
  TablaCargaUniforme& cu = p.CargaUniforme;
  cu.Redimensionar(p.NúmeroCargasUniformes);
  for (long i = 1; i <= p.NúmeroCargasUniformes; ++i)
    for (Tabla<double>* t : {&cu.xo, &cu.yo, &cu.xf, &cu.yf, &cu.qx, &cu.qy}) (*t)[i] = l.LeerReal();
  if (p.NúmeroCargasUniformes > 0) p.CargasUniformesDadas = true;
  p.NúmeroCargasPuntuales = Cuenta(l);
  TablaCargaPuntual& cp = p.CargaPuntual;
  cp.Redimensionar(p.NúmeroCargasPuntuales);
  for (long i = 1; i <= p.NúmeroCargasPuntuales; ++i)
    for (Tabla<double>* t : {&cp.Xpuntual, &cp.Ypuntual, &cp.Px, &cp.Py}) (*t)[i] = l.LeerReal();
  if (p.NúmeroCargasPuntuales > 0) p.CargasPuntualesDadas = true;
  l.LeerBandera(p.ParámetrosInicialesDados);
  if (p.ParámetrosInicialesDados) {
    pi.MétodoDeCálculo = l.LeerEntero();
    for (double* x : {&pi.FSInicial, &pi.Radio, &pi.CentroX, &pi.CentroY, &pi.NúmeroDovelas, &m.FSFinalElementos})
      *x = l.LeerReal();
  }
  pi.CoeficienteSísmicoHorizontal = l.LeerReal();
  pi.CoeficienteSísmicoVertical = l.LeerReal();
  p.NúmeroTramosFalla = Cuenta(l);
  p.TramoFalla.Redimensionar(p.NúmeroTramosFalla);
  for (long i = 1; i <= p.NúmeroTramosFalla; ++i) {
    p.TramoFalla.PuntoInicial[i] = l.LeerReal();
    p.TramoFalla.PuntoFinal[i] = l.LeerReal();
    p.TramoFalla.TipoUnión[i] = l.LeerTexto();
  }
  if (p.NúmeroTramosFalla > 0) p.GeometríaFallaDefinida = true;
}

}  // namespace lomaterra
