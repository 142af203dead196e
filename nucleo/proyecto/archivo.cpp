// The project file. The file carries no tags: a value is known only by its place, so the writer
// and the reader below walk the same items under the same conditions, in the same order. When one
// of them changes, the other must change with it.
#include "proyecto/archivo.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "proyecto/archivo_elementos.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/secuencial.h"

namespace lomaterra {

namespace {

const char* const kErrorLectura = "Error leyendo archivo";
const char* const kSinMaterial = "Seleccione la opción parámetros iniciales e indique si es suelo <S> ó <R>";
const char* const kTítuloGuardar = "Guardar proyecto";

// ---------------------------------------------------------------------------------------------
// Writer

void EscribirXY(EscritorSecuencial& e, const TablaXY& t, Entero n) {
  e.Entero(n).Fin();
  for (long i = 1; i <= n; ++i) e.Real(t.X.Leer(i)).Real(t.Y.Leer(i)).Fin();
}

void EscribirCabecera(EscritorSecuencial& e, const Proyecto& p) {
  e.Texto(LimpiarSaltos(p.Ventana.TextoProyecto)).Fin();
  const InformaciónDelProyecto& info = p.InformaciónProyecto;
  for (const std::string* s : {&info.ProgresivaInicial, &info.ProgresivaFinal, &info.FechaProyecto,
                               &info.IngResponsable, &info.Empresa})
    e.Texto(*s).Fin();
  e.Texto(p.TipoDeAnálisis).Fin();
  e.Bandera(p.Sísmico.CálculoSísmicoHecho).Fin();
}

// The tidy-ups made just before body "T" is walked, so that the file stays consistent. They stay
// in memory after the save.
void OrdenarAntesDelCuerpoT(Proyecto& p) {
  TablaParámetrosIniciales& pi = p.ParámetrosIniciales;
  if (p.NúmeroTramosFalla > 1 && p.TramoFalla.TipoUnión.Leer(1) != "C" && pi.ParámetrosInstantáneos == 0) {
    pi.Radio = 0;
    pi.CentroX = 0;
    pi.CentroY = 0;
  }
  if (pi.Radio == 0 && pi.MétodoDeCálculo == 2) {
    pi.CentroX = pi.ReferenciaMomentoX;
    pi.CentroY = pi.ReferenciaMomentoY;
  }
  TablaDeDovelas& d = p.TablaDovelas;
  if (p.CálculoHecho) {
    if (p.TipoDeMaterial == "R") {
      p.Estrato.BorrarSuelo();
      if (!pi.UsaParámetrosInstantáneos) {
        d.FricciónBase.Borrar();
        d.CohesiónBase.Borrar();
      }
    } else if (p.TipoDeMaterial == "S") {
      p.Estrato.BorrarRoca();
      d.EsfuerzoPrincipalMayor.Borrar();
      d.EsfuerzoPrincipalMenor.Borrar();
      d.a_Base.Borrar();
      d.s_Base.Borrar();
      d.m_Base.Borrar();
    }
  }
  if (p.TipoDeMaterial == "S") {
    p.Roca.PuntosEnsayo.Borrar();
    p.Roca.EnsayoSigma1.Borrar();
    p.Roca.EnsayoSigma3.Borrar();
  }
  if (pi.MétodoDeCálculo != 4) d.AlturaEmpuje.Borrar();
  if (p.TipoDeMaterial == "R") p.Roca.TipoDeObra = "S";
}

void EscribirResultadosDovelas(EscritorSecuencial& e, const Proyecto& p) {
  const TablaDeDovelas& d = p.TablaDovelas;
  const bool roca = p.TipoDeMaterial == "R";
  e.Entero(p.NúmeroBordes).Fin();
  const long n = p.NúmeroBordes - 1;
  for (long i = 1; i <= n; ++i) {
    auto línea = [&](const Tabla<double>& t) { e.Real(t.Leer(i)).Fin(); };
    línea(d.Ancho);
    línea(d.XMedio);
    línea(d.YTalud);
    línea(d.YBase);
    línea(d.PresiónPoros);
    if (roca) {
      if (!p.ParámetrosIniciales.UsaParámetrosInstantáneos) {
        línea(d.m_Base);
        línea(d.s_Base);
      } else {
        línea(d.FricciónBase);
        línea(d.CohesiónBase);
      }
      línea(d.a_Base);
      línea(d.PesoUnitarioMedio);
      línea(d.EsfuerzoNormalTotal);
      línea(d.EsfuerzoNormalEfectivo);
      línea(d.EsfuerzoTangencial);
      línea(d.EsfuerzoPrincipalMayor);
      línea(d.EsfuerzoPrincipalMenor);
    } else {
      línea(d.FricciónBase);
      línea(d.CohesiónBase);
      línea(d.PesoUnitarioMedio);
      línea(d.EsfuerzoNormalTotal);
      línea(d.EsfuerzoNormalEfectivo);
      línea(d.EsfuerzoTangencial);
    }
  }
  // Closing rows: only the last row of the history is kept.
  const long k = p.NúmeroIteraciones;
  const TablaHistoria& h = p.HistoriaIteraciones;
  e.Entero(k).Fin();
  const Entero método = p.ParámetrosIniciales.MétodoDeCálculo;
  if (método == 1)
    e.Real(h.Multiplicador1.Leer(k)).Real(h.Multiplicador2.Leer(k)).Real(h.FactorDeSeguridad.Leer(k)).Fin();
  else if (método >= 2 && método <= 4)
    e.Real(h.FactorDeSeguridad.Leer(k)).Fin();
}

void EscribirCuerpoT(EscritorSecuencial& e, const Proyecto& p) {
  const TablaParámetrosIniciales& pi = p.ParámetrosIniciales;
  const bool roca = p.TipoDeMaterial == "R";
  const bool suelo = p.TipoDeMaterial == "S";
  e.Texto(p.TipoDeMaterial).Fin();
  if (roca) {
    e.Texto(p.Roca.TipoDeObra).Fin();
    e.Real(p.Roca.FactorPerturbación).Fin();
    e.Real(p.Roca.AlturaH).Fin();
  }
  e.Letra(pi.UsaParámetrosInstantáneos).Fin();
  e.Entero(pi.MétodoDeCálculo).Fin();
  for (double x : {pi.Multiplicador1, pi.Multiplicador2, pi.FSInicial, pi.EsfuerzoInicialCresta, pi.Radio,
                   pi.ReferenciaMomentoX, pi.ReferenciaMomentoY, pi.CoeficienteSísmicoHorizontal,
                   pi.CoeficienteSísmicoVertical, pi.NúmeroDovelas})
    e.Real(x).Fin();
  EscribirXY(e, p.CoordenadasTalud, p.NúmeroPuntosTalud);
  EscribirXY(e, p.CoordenadasFalla, p.NúmeroPuntosFalla);
  e.Entero(p.NúmeroTramosFalla).Fin();
  for (long i = 1; i <= p.NúmeroTramosFalla; ++i)
    e.Real(p.TramoFalla.PuntoInicial.Leer(i)).Real(p.TramoFalla.PuntoFinal.Leer(i)).Texto(p.TramoFalla.TipoUnión.Leer(i)).Fin();
  if (p.SuperficieCircular() && pi.MétodoDeCálculo == 2) e.Letra(pi.VaríaRadio).Fin();
  EscribirXY(e, p.CoordenadasFreático, p.NúmeroPuntosFreático);

  // Strata
  e.Entero(p.NúmeroEstratos).Entero(MayorDeLista(p.PuntosEstrato, p.NúmeroEstratos)).Entero(p.NúmeroEstratosCaracterizados).Fin();
  const TablaEstrato& es = p.Estrato;
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    const long puntos = p.PuntosEstrato.Leer(s);
    e.Entero(puntos).Fin();
    if (suelo) {
      e.Real(es.Cohesión.Leer(s)).Fin();
      e.Real(es.Fricción.Leer(s)).Fin();
      e.Real(es.PesoUnitarioHúmedo.Leer(s)).Fin();
      e.Real(es.PesoUnitarioSaturado.Leer(s)).Fin();
      e.Entero(es.TipoEstrato.Leer(s)).Fin();
      e.Real(es.ParámetroPresión.Leer(s)).Fin();
      e.Real(es.CoeficienteConsolidaciónVertical.Leer(s)).Fin();
      e.Real(es.TiempoDeConstrucción.Leer(s)).Fin();
    } else if (roca) {
      e.Real(es.m_intacta.Leer(s)).Fin();
      e.Real(es.Parámetro_GSI.Leer(s)).Fin();
      e.Real(es.m_macizo.Leer(s)).Fin();
      e.Real(es.s_macizo.Leer(s)).Fin();
      e.Real(es.PesoUnitarioHúmedo.Leer(s)).Fin();
      e.Real(es.PesoUnitarioSaturado.Leer(s)).Fin();
      e.Real(es.C_Simple.Leer(s)).Fin();
    }
    for (long j = 1; j <= puntos; ++j) e.Real(p.XEstrato.Leer(s, j)).Real(p.YEstrato.Leer(s, j)).Fin();
  }

  // Loads
  const TablaCargaUniforme& cu = p.CargaUniforme;
  e.Entero(p.NúmeroCargasUniformes).Fin();
  for (long i = 1; i <= p.NúmeroCargasUniformes; ++i)
    e.Real(cu.xo.Leer(i)).Real(cu.yo.Leer(i)).Real(cu.xf.Leer(i)).Real(cu.yf.Leer(i)).Real(cu.qx.Leer(i)).Real(cu.qy.Leer(i)).Fin();
  const TablaCargaPuntual& cp = p.CargaPuntual;
  e.Entero(p.NúmeroCargasPuntuales).Fin();
  for (long i = 1; i <= p.NúmeroCargasPuntuales; ++i)
    e.Real(cp.Xpuntual.Leer(i)).Real(cp.Ypuntual.Leer(i)).Real(cp.Px.Leer(i)).Real(cp.Py.Leer(i)).Fin();

  // Results of the last calculation
  e.Letra(p.CálculoHecho).Fin();
  if (p.CálculoHecho) EscribirResultadosDovelas(e, p);

  // Tension crack: the water level is written ordinate first.
  const TablaGrietaTracción& g = p.GrietaTracción;
  for (double x : {g.AbscisaPrimerPunto, g.OrdenadaPrimerPunto, g.AbscisaSegundoPunto, g.OrdenadaSegundoPunto,
                   g.OrdenadaNF, g.AbscisaNF, g.EmpujeGrieta})
    e.Real(x).Fin();

  // Laboratory tests of the rock
  e.Letra(p.Roca.EnsayosDados).Fin();
  e.Entero(p.Roca.EnsayosDados ? MayorDeLista(p.Roca.PuntosEnsayo, p.NúmeroEstratos) : 0).Fin();
  if (roca && p.Roca.EnsayosDados) {
    for (long s = 1; s <= p.NúmeroEstratos; ++s) {
      const long pares = p.Roca.PuntosEnsayo.Leer(s);
      e.Entero(pares).Fin();
      for (long j = 1; j <= pares; ++j) e.Real(p.Roca.EnsayoSigma1.Leer(s, j)).Real(p.Roca.EnsayoSigma3.Leer(s, j)).Fin();
    }
  }

  // Heights of the lateral force of Janbu: only after a finished calculation, when the slices
  // were written above, since only then can the reader know how many to read. A run that did not
  // finish (no convergence, or left by the user) keeps them in memory but not in the file.
  if (pi.MétodoDeCálculo == 4 && p.CálculoHecho)
    for (long i = 1; i <= p.NúmeroBordes - 1; ++i) e.Real(p.TablaDovelas.AlturaEmpuje.Leer(i)).Fin();
  if (pi.UsaParámetrosInstantáneos) e.Entero(pi.ParámetrosInstantáneos).Fin();

  e.Real(p.SumaTangenciales).Real(p.SumaNormalesTotales).Real(p.SumaPrincipalesMayores)
      .Real(p.SumaNormalesEfectivos).Real(p.SumaPrincipalesMenores).Fin();
  const DatosAnclajes& a = p.Anclajes;
  e.Real(a.FSConAnclaje).Real(a.InclinaciónAnclajes).Real(a.DiámetroAnclajes).Real(a.EsfuerzoRoturaAnclaje)
      .Real(a.NúmeroGuayas).Fin();
  e.Real(a.SeparaciónAnclajesActivo).Real(a.SeparaciónAnclajesPasivo).Fin();
}

// ---------------------------------------------------------------------------------------------
// Reader

// A count: a whole number that is not negative.
Entero LeerCuenta(LectorSecuencial& l) {
  const Entero n = l.LeerEntero();
  if (n < 0) throw ErrorLectura("cuenta negativa");
  return n;
}

// A two-index table no real project comes near: the file is damaged.
void ComprobarTamaño(long filas, long columnas) {
  if (filas * columnas > kCeldasMáximas) throw ErrorLectura("tabla demasiado grande");
}

// A count of records of `ítems` items each: not negative, and no more than the rest of the file
// can hold.
Entero LeerCuentaDe(LectorSecuencial& l, long ítems) {
  const Entero n = LeerCuenta(l);
  l.ComprobarCuenta(n, ítems);
  return n;
}

void LeerXY(LectorSecuencial& l, TablaXY& t, Entero& n) {
  n = LeerCuentaDe(l, 2);
  t.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    t.X[i] = l.LeerReal();
    t.Y[i] = l.LeerReal();
  }
}

// The head; returns item 1, the description, which the window takes only at the end of the read.
std::string LeerCabecera(LectorSecuencial& l, Proyecto& p) {
  const std::string descripción = l.LeerTexto();
  InformaciónDelProyecto& info = p.InformaciónProyecto;
  for (std::string* s : {&info.ProgresivaInicial, &info.ProgresivaFinal, &info.FechaProyecto,
                         &info.IngResponsable, &info.Empresa})
    *s = l.LeerTexto();
  p.TipoDeAnálisis = Mayúsculas(Recortar(l.LeerTexto()));
  if (p.TipoDeAnálisis != "T" && p.TipoDeAnálisis != "F")
    throw ErrorLectura("el tipo de análisis es \"" + p.TipoDeAnálisis +
                       "\"; un proyecto es de equilibrio límite (\"T\") o de elementos finitos (\"F\")");
  l.LeerBandera(p.Sísmico.CálculoSísmicoHecho);
  p.Sísmico.SismoCalculado = p.Sísmico.CálculoSísmicoHecho;
  return descripción;
}

void LeerResultadosDovelas(LectorSecuencial& l, Proyecto& p) {
  TablaDeDovelas& d = p.TablaDovelas;
  const bool roca = p.TipoDeMaterial == "R";
  const bool instantáneos = p.ParámetrosIniciales.UsaParámetrosInstantáneos;
  p.NúmeroBordes = LeerCuentaDe(l, 1);
  const long n = p.NúmeroBordes > 0 ? p.NúmeroBordes - 1 : 0;
  l.ComprobarCuenta(n, roca ? 14 : 11);
  for (Tabla<double>* t : {&d.Ancho, &d.XMedio, &d.YTalud, &d.YBase, &d.PresiónPoros, &d.FricciónBase,
                           &d.CohesiónBase, &d.PesoUnitarioMedio, &d.EsfuerzoNormalTotal,
                           &d.EsfuerzoNormalEfectivo, &d.EsfuerzoTangencial})
    t->Redimensionar(n);
  if (roca)
    for (Tabla<double>* t : {&d.m_Base, &d.s_Base, &d.a_Base, &d.EsfuerzoPrincipalMayor, &d.EsfuerzoPrincipalMenor})
      t->Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    auto línea = [&](Tabla<double>& t) { t[i] = l.LeerReal(); };
    línea(d.Ancho);
    línea(d.XMedio);
    línea(d.YTalud);
    línea(d.YBase);
    línea(d.PresiónPoros);
    if (roca) {
      if (!instantáneos) {
        línea(d.m_Base);
        línea(d.s_Base);
      } else {
        línea(d.FricciónBase);
        línea(d.CohesiónBase);
      }
      línea(d.a_Base);
      línea(d.PesoUnitarioMedio);
      línea(d.EsfuerzoNormalTotal);
      línea(d.EsfuerzoNormalEfectivo);
      línea(d.EsfuerzoTangencial);
      línea(d.EsfuerzoPrincipalMayor);
      línea(d.EsfuerzoPrincipalMenor);
    } else {
      línea(d.FricciónBase);
      línea(d.CohesiónBase);
      línea(d.PesoUnitarioMedio);
      línea(d.EsfuerzoNormalTotal);
      línea(d.EsfuerzoNormalEfectivo);
      línea(d.EsfuerzoTangencial);
    }
  }
  // Only the row numbered NúmeroIteraciones comes back; the rows before it read 0.
  p.NúmeroIteraciones = LeerCuenta(l);
  const long k = p.NúmeroIteraciones;
  TablaHistoria& h = p.HistoriaIteraciones;
  h.Redimensionar(k);
  const Entero método = p.ParámetrosIniciales.MétodoDeCálculo;
  double m1 = 0, m2 = 0, fs = 0;
  if (método == 1) {
    m1 = l.LeerReal();
    m2 = l.LeerReal();
    fs = l.LeerReal();
  } else if (método >= 2 && método <= 4) {
    fs = l.LeerReal();
  }
  if (k > 0) {  // row 0 stays 0
    h.Multiplicador1[k] = m1;
    h.Multiplicador2[k] = m2;
    h.FactorDeSeguridad[k] = fs;
  }
}

void LeerCuerpoT(LectorSecuencial& l, Proyecto& p) {
  TablaParámetrosIniciales& pi = p.ParámetrosIniciales;
  p.TipoDeMaterial = l.LeerTexto();
  const bool roca = p.TipoDeMaterial == "R";
  const bool suelo = p.TipoDeMaterial == "S";
  if (roca) {
    p.Roca.TipoDeObra = l.LeerTexto();
    p.Roca.FactorPerturbación = l.LeerReal();
    p.Roca.AlturaH = l.LeerReal();
  }
  bool usa = false;
  l.LeerLetra(usa);
  if (usa) {
    pi.UsaParámetrosInstantáneos = true;
    pi.ParámetrosInstantáneosDisponibles = true;
  }
  pi.LetraUsaParámetrosInstantáneos = pi.UsaParámetrosInstantáneos ? "S" : "N";
  pi.MétodoDeCálculo = l.LeerEntero();
  pi.Multiplicador1 = l.LeerReal();
  pi.Multiplicador2 = l.LeerReal();
  pi.FSInicial = l.LeerReal();
  pi.EsfuerzoInicialCresta = l.LeerReal();
  pi.Radio = l.LeerReal();
  pi.CentroX = pi.ReferenciaMomentoX = l.LeerReal();
  pi.CentroY = pi.ReferenciaMomentoY = l.LeerReal();
  pi.CoeficienteSísmicoHorizontal = l.LeerReal();
  pi.CoeficienteSísmicoVertical = l.LeerReal();
  pi.NúmeroDovelas = l.LeerReal();
  LeerXY(l, p.CoordenadasTalud, p.NúmeroPuntosTalud);
  LeerXY(l, p.CoordenadasFalla, p.NúmeroPuntosFalla);
  p.NúmeroTramosFalla = LeerCuentaDe(l, 3);
  p.TramoFalla.Redimensionar(p.NúmeroTramosFalla);
  for (long i = 1; i <= p.NúmeroTramosFalla; ++i) {
    p.TramoFalla.PuntoInicial[i] = l.LeerReal();
    p.TramoFalla.PuntoFinal[i] = l.LeerReal();
    p.TramoFalla.TipoUnión[i] = l.LeerTexto();
  }
  // A surface that is not one arc takes its moments about no stored reference.
  if ((p.NúmeroTramosFalla == 1 && p.TramoFalla.TipoUnión.Leer(1) != "C") || p.NúmeroTramosFalla > 1) {
    pi.ReferenciaMomentoX = 0;
    pi.ReferenciaMomentoY = 0;
  }
  p.ParámetrosInicialesDados = true;
  p.GeometríaFallaDefinida = true;
  if (p.SuperficieCircular() && pi.MétodoDeCálculo == 2) pi.LetraVaríaRadio = l.LeerLetra(pi.VaríaRadio);
  LeerXY(l, p.CoordenadasFreático, p.NúmeroPuntosFreático);

  // Strata
  p.NúmeroEstratos = LeerCuentaDe(l, suelo ? 9 : (roca ? 8 : 1));
  const Entero mayor = LeerCuenta(l);
  p.NúmeroEstratosCaracterizados = l.LeerEntero();
  const long ne = p.NúmeroEstratos;
  ComprobarTamaño(ne, mayor);
  p.PuntosEstrato.Redimensionar(ne);
  p.XEstrato.Redimensionar(ne, mayor);
  p.YEstrato.Redimensionar(ne, mayor);
  TablaEstrato& es = p.Estrato;
  es.RedimensionarConservando(ne);
  for (long s = 1; s <= ne; ++s) {
    const Entero puntos = LeerCuentaDe(l, 2);
    if (puntos > mayor) throw ErrorLectura("un estrato tiene más puntos que el mayor declarado");
    p.PuntosEstrato[s] = puntos;
    if (suelo) {
      es.Cohesión[s] = l.LeerReal();
      es.Fricción[s] = l.LeerReal();
      es.PesoUnitarioHúmedo[s] = l.LeerReal();
      es.PesoUnitarioSaturado[s] = l.LeerReal();
      es.TipoEstrato[s] = l.LeerEntero();
      es.ParámetroPresión[s] = l.LeerReal();
      es.CoeficienteConsolidaciónVertical[s] = l.LeerReal();
      es.TiempoDeConstrucción[s] = l.LeerReal();
    } else if (roca) {
      es.m_intacta[s] = l.LeerReal();
      es.Parámetro_GSI[s] = l.LeerReal();
      es.m_macizo[s] = l.LeerReal();
      es.s_macizo[s] = l.LeerReal();
      es.PesoUnitarioHúmedo[s] = l.LeerReal();
      es.PesoUnitarioSaturado[s] = l.LeerReal();
      es.C_Simple[s] = l.LeerReal();
    }
    for (long j = 1; j <= puntos; ++j) {
      p.XEstrato(s, j) = l.LeerReal();
      p.YEstrato(s, j) = l.LeerReal();
    }
  }
  p.EstratosCaracterizados = true;

  // Loads
  p.NúmeroCargasUniformes = LeerCuentaDe(l, 6);
  TablaCargaUniforme& cu = p.CargaUniforme;
  cu.Redimensionar(p.NúmeroCargasUniformes);
  for (long i = 1; i <= p.NúmeroCargasUniformes; ++i)
    for (Tabla<double>* t : {&cu.xo, &cu.yo, &cu.xf, &cu.yf, &cu.qx, &cu.qy}) (*t)[i] = l.LeerReal();
  p.CargasUniformesDadas = p.NúmeroCargasUniformes > 0;
  p.NúmeroCargasPuntuales = LeerCuentaDe(l, 4);
  TablaCargaPuntual& cp = p.CargaPuntual;
  cp.Redimensionar(p.NúmeroCargasPuntuales);
  for (long i = 1; i <= p.NúmeroCargasPuntuales; ++i)
    for (Tabla<double>* t : {&cp.Xpuntual, &cp.Ypuntual, &cp.Px, &cp.Py}) (*t)[i] = l.LeerReal();
  p.CargasPuntualesDadas = p.NúmeroCargasPuntuales > 0;

  // Results of the last calculation
  bool calculado = false;
  l.LeerLetra(calculado);
  if (calculado) p.CálculoHecho = true;
  if (p.CálculoHecho) LeerResultadosDovelas(l, p);

  TablaGrietaTracción& g = p.GrietaTracción;
  for (double* x : {&g.AbscisaPrimerPunto, &g.OrdenadaPrimerPunto, &g.AbscisaSegundoPunto, &g.OrdenadaSegundoPunto,
                    &g.OrdenadaNF, &g.AbscisaNF, &g.EmpujeGrieta})
    *x = l.LeerReal();

  // Laboratory tests: the letter counts only for rock.
  bool ensayos = p.Roca.EnsayosDados;
  l.LeerLetra(ensayos);
  if (roca) p.Roca.EnsayosDados = ensayos;
  const Entero mayorEnsayo = LeerCuenta(l);
  if (roca && p.Roca.EnsayosDados) {
    ComprobarTamaño(ne, mayorEnsayo);
    p.Roca.PuntosEnsayo.Redimensionar(ne);
    p.Roca.EnsayoSigma1.Redimensionar(ne, mayorEnsayo);
    p.Roca.EnsayoSigma3.Redimensionar(ne, mayorEnsayo);
    for (long s = 1; s <= ne; ++s) {
      const Entero pares = LeerCuentaDe(l, 2);
      if (pares > mayorEnsayo) throw ErrorLectura("un estrato tiene más ensayos que el mayor declarado");
      p.Roca.PuntosEnsayo[s] = pares;
      for (long j = 1; j <= pares; ++j) {
        p.Roca.EnsayoSigma1(s, j) = l.LeerReal();
        p.Roca.EnsayoSigma3(s, j) = l.LeerReal();
      }
    }
  }

  if (pi.MétodoDeCálculo == 4 && p.CálculoHecho) {
    const long n = p.NúmeroBordes - 1;
    l.ComprobarCuenta(n, 1);
    p.TablaDovelas.AlturaEmpuje.Redimensionar(p.NúmeroBordes);
    for (long i = 1; i <= n; ++i) p.TablaDovelas.AlturaEmpuje[i] = l.LeerReal();
  }
  if (pi.UsaParámetrosInstantáneos) pi.ParámetrosInstantáneos = l.LeerEntero();

  p.SumaTangenciales = l.LeerReal();
  p.SumaNormalesTotales = l.LeerReal();
  p.SumaPrincipalesMayores = l.LeerReal();
  p.SumaNormalesEfectivos = l.LeerReal();
  p.SumaPrincipalesMenores = l.LeerReal();
  DatosAnclajes& a = p.Anclajes;
  for (double* x : {&a.FSConAnclaje, &a.InclinaciónAnclajes, &a.DiámetroAnclajes, &a.EsfuerzoRoturaAnclaje,
                    &a.NúmeroGuayas, &a.SeparaciónAnclajesActivo, &a.SeparaciónAnclajesPasivo})
    *x = l.LeerReal();
}

// What a complete read leaves on the main window.
void TerminarLectura(Proyecto& p, const std::string& descripción) {
  p.Ventana.TextoProyecto = descripción;
  p.Ventana.ReconstruirListaEstrato(p.NúmeroEstratos);
  p.Ventana.TipoPanel = 1;
  p.Ventana.EstratoPanel = 1;
  CargarPanelCoordenadas(p, 1, 1);
  p.InformaciónDada = true;
  p.Ventana.EntradaCoordenadasAbierta = true;
}

}  // namespace

namespace {

// The free texts of the project and how the information screen names them.
std::vector<std::pair<const char*, const std::string*>> TextosLibres(const Proyecto& p) {
  const InformaciónDelProyecto& info = p.InformaciónProyecto;
  return {{"Descripción del proyecto", &p.Ventana.TextoProyecto},
          {"Progresiva inicial", &info.ProgresivaInicial},
          {"Progresiva final", &info.ProgresivaFinal},
          {"Fecha", &info.FechaProyecto},
          {"Ingeniero responsable", &info.IngResponsable},
          {"Empresa", &info.Empresa}};
}

// A text the file cannot keep as typed is named before anything is written; the user decides.
bool AceptaTextosCambiados(const Proyecto& p, Interfaz& ui) {
  std::string campos;
  for (const auto& [nombre, texto] : TextosLibres(p)) {
    const std::string malos = CaracteresQueNoSeGuardan(*texto);
    if (malos.empty()) continue;
    campos += std::string(campos.empty() ? "" : "; ") + "«" + nombre + "»: " + malos;
  }
  if (campos.empty()) return true;
  return ui.Pregunta("Algunos caracteres no se pueden guardar en el archivo del proyecto y se "
                     "cambiarán (las comillas dobles por comillas simples, los demás por \"?\"). "
                     "Campos y caracteres: " + campos + ". ¿Desea guardar de todos modos?",
                     kTítuloGuardar);
}

}  // namespace

bool GuardarProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui) {
  GuardarPanelCoordenadas(p, p.Ventana.TipoPanel, p.Ventana.EstratoPanel);
  if (p.TipoDeMaterial.empty() && p.TipoDeAnálisis == "T") {
    ui.Mensaje(kSinMaterial);
    return false;
  }
  if (!AceptaTextosCambiados(p, ui)) return false;
  EscritorSecuencial e;
  EscribirCabecera(e, p);
  if (p.TipoDeAnálisis == "T") {
    OrdenarAntesDelCuerpoT(p);
    EscribirCuerpoT(e, p);
  } else if (p.TipoDeAnálisis == "F") {
    EscribirCuerpoF(e, p);
  }
  std::string detalle;
  if (!e.GuardarEn(archivo, &detalle)) {
    ui.Mensaje("No se pudo guardar el proyecto en \"" + archivo + "\" (" + detalle +
                   "). Si ya existía un archivo con ese nombre, quedó como estaba. Verifique que la "
                   "carpeta exista y que se pueda escribir en ella.",
               kTítuloGuardar);
    return false;
  }
  return true;
}

bool LeerProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui) {
  // The read goes into a copy: a file that cannot be read as a whole changes nothing.
  Proyecto q = p;
  ReiniciarProyecto(q);
  std::optional<LectorSecuencial> l;
  std::string motivo;
  try {
    l = LectorSecuencial::DeArchivo(archivo);
    const std::string descripción = LeerCabecera(*l, q);
    if (q.TipoDeAnálisis == "F") LeerCuerpoF(*l, q);
    else LeerCuerpoT(*l, q);
    if (!l->AlFinal())
      throw ErrorLectura("el proyecto termina antes que el archivo: sobran datos");
    TerminarLectura(q, descripción);
    p = std::move(q);
    return true;
  } catch (const ErrorLectura& e) {
    motivo = e.what();
  } catch (const FalloAritmético& e) {
    motivo = e.what();
  } catch (const std::bad_alloc&) {
    motivo = "no hay memoria para las tablas que el archivo declara";
  }
  std::string detalle = "Archivo: " + archivo + "\n" + motivo;
  if (l) detalle += "\nLínea " + std::to_string(l->Línea()) + " del archivo.";
  detalle += "\nEl proyecto abierto no se cambió.";
  ui.MensajeDetallado(kErrorLectura, "", detalle);
  return false;
}

std::string LimpiarSaltos(const std::string& texto) {
  std::string r = texto;
  for (char& c : r)
    if (c == '\r' || c == '\n') c = ' ';
  return r;
}

Entero MayorDeLista(const Tabla<Entero>& lista, long n) {
  Entero mayor = 0;
  for (long i = 1; i <= n; ++i) mayor = std::max(mayor, lista.Leer(i));
  return mayor;
}

}  // namespace lomaterra
