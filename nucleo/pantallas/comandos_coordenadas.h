// The commands of the menu "Coordenadas": which table is in the coordinate panel, inserting and
// deleting strata, deleting the phreatic line and reading the side file of slope and strata.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

void MenúCoordenadasTalud(Proyecto& p, Interfaz& ui);
void MenúCoordenadasFalla(Proyecto& p, Interfaz& ui);
void MenúCoordenadasFreático(Proyecto& p, Interfaz& ui);
void MenúCoordenadasEstratos(Proyecto& p, Interfaz& ui);
void MenúInsertarEstrato(Proyecto& p, Interfaz& ui);
void MenúEliminarEstrato(Proyecto& p, Interfaz& ui);
void MenúEliminarNivelFreático(Proyecto& p, Interfaz& ui);
void MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(Proyecto& p, Interfaz& ui);

// Makes room for a new, empty stratum numbered `posición` (1..NúmeroEstratos + 1) in every
// stratum table, and closes the rows up again over stratum `estrato`.
void AbrirFilaDeEstrato(Proyecto& p, int posición);
void CerrarFilaDeEstrato(Proyecto& p, int estrato);

}  // namespace lomaterra
