// The sequential item reader and writer.
#include <gtest/gtest.h>

#include "proyecto/secuencial.h"

namespace lomaterra {
namespace {

TEST(Secuencial, EscribeLíneasCrLfYLeeLoEscrito) {
  EscritorSecuencial e;
  e.Texto("Talud \"norte\"").Real(0.1 + 0.2).Entero(-3).Fin();
  e.Real(1e-5).Real(2.5e20).Bandera(false).Letra(true).Fin();
  EXPECT_EQ(e.Contenido(), "\"Talud 'norte'\",0.3,-3\r\n1E-05,2.5E+20,2,\"S\"\r\n");
  LectorSecuencial l(e.Contenido());
  EXPECT_EQ(l.LeerTexto(), "Talud 'norte'");
  EXPECT_DOUBLE_EQ(l.LeerReal(), 0.3);
  EXPECT_EQ(l.LeerEntero(), -3);
  EXPECT_DOUBLE_EQ(l.LeerReal(), 1e-5);
  EXPECT_DOUBLE_EQ(l.LeerReal(), 2.5e20);
  bool b = true;
  l.LeerBandera(b);
  EXPECT_FALSE(b);
  l.LeerLetra(b);
  EXPECT_TRUE(b);
  EXPECT_TRUE(l.AlFinal());
  EXPECT_THROW(l.LeerReal(), ErrorLectura);
}

TEST(Secuencial, FormasAntiguasYÍtemsPartidosDeOtraManera) {
  LectorSecuencial l(".5, -.25\n\"a,b\"\r\n7\n,8");
  EXPECT_DOUBLE_EQ(l.LeerReal(), 0.5);
  EXPECT_DOUBLE_EQ(l.LeerReal(), -0.25);
  EXPECT_EQ(l.LeerTexto(), "a,b");
  EXPECT_EQ(l.LeerEntero(), 7);
  EXPECT_EQ(l.LeerTexto(), "");  // an empty item between a line end and a comma
  EXPECT_EQ(l.LeerEntero(), 8);
}

TEST(Secuencial, NúmeroMalFormadoEsErrorDeLectura) {
  LectorSecuencial l("1.2.3");
  EXPECT_THROW(l.LeerReal(), ErrorLectura);
  LectorSecuencial m("\"5\"");
  EXPECT_THROW(m.LeerReal(), ErrorLectura);
}

TEST(Secuencial, Windows1252YUtf8) {
  const std::string utf8 = "Presa Peñón – año";
  const std::string cp = CodificarWindows1252(utf8);
  EXPECT_EQ(cp, std::string("Presa Pe\xF1\xF3n \x96 a\xF1o"));
  EXPECT_EQ(DecodificarTexto(cp), utf8);
  EXPECT_EQ(DecodificarTexto(utf8), utf8);
  EXPECT_EQ(CodificarWindows1252("π"), "?");
}

}  // namespace
}  // namespace lomaterra
