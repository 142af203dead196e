// Small helpers that carry the behaviour of the original platform that the program relies on:
// number formats, rounding, the "is this a number" test, upper case.
#pragma once

#include <cstdint>
#include <string>

namespace lomaterra {

// Formats a number by a pattern such as "#0.00", "#0.000000000", "#0.00 ton", "#0.00 ton.m",
// "#" or "0.0000". Digits after the point as the pattern has zeros; halves away from zero on the
// decimal value of the number; a pattern's text after the digits is kept as it stands.
std::string Formato(double valor, const std::string& patrón);

// Nearest integer with halves to even (2.5 -> 2, 3.5 -> 4), as whole-number conversions do.
double RedondeoPar(double x);
// The same into a 16-bit count; a value outside its range is an arithmetic fault.
std::int16_t EnteroCorto(double x);

// True when the text reads as a number with a decimal point (blanks around, a sign, digits,
// a point, an exponent). The locale plays no part.
bool EsNúmero(const std::string& texto);
// The value of a text that EsNúmero accepts; 0 for any other text.
double ANúmero(const std::string& texto);

// A number written for a text box: shortest form that reads back the same, point as decimal sign.
std::string NúmeroATexto(double x);

// Upper case of a text; accented letters of Spanish included.
std::string Mayúsculas(const std::string& texto);
// Text without blanks at both ends.
std::string Recortar(const std::string& texto);

}  // namespace lomaterra
