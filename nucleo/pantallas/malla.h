// The screens of the finite-element mesh (nodes, elements, element materials, restricted nodes,
// uniform loads on element sides, elastic parameters of the strata), their menu commands, and
// the side files of nodes and elements.
#pragma once

#include <string>
#include <vector>

#include "pantallas/archivo_lateral.h"
#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

// "Coordenadas de los nodos que definen los elementos"
class PantallaNodos : public Pantalla {
 public:
  explicit PantallaNodos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);
  void Agregar(Interfaz& ui);
  void Modificar(Interfaz& ui);
  void Borrar(Interfaz& ui);
  void Aceptar(Interfaz& ui);

 private:
  struct Fila {
    long nodo;
    double x, y, z;
  };
  bool Insertar(Interfaz& ui);
  void Mostrar();
  Proyecto& p_;
  std::vector<Fila> filas_;
};

// "Definición de los elementos"
class PantallaElementos : public Pantalla {
 public:
  explicit PantallaElementos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void ElegirElemento(Interfaz& ui);  // ListaElementos
  void ElegirNodo(Interfaz& ui);      // ListaNodosElementos
  void Agregar(Interfaz& ui);         // BotónAgregar: a node to the current element
  void Modificar(Interfaz& ui);       // BotónModificar: the selected node
  void Borrar(Interfaz& ui);          // BotónBorrar: the selected node
  void ModificarLados(Interfaz& ui);  // Modificar: points and sides
  void NuevoElemento(Interfaz& ui);   // BotónAgregarElemento
  void InsertarElemento(Interfaz& ui);  // BotónInsertarElemento
  void EliminarElemento(Interfaz& ui);  // BotónEliminarElemento
  void Aceptar(Interfaz& ui);

  struct Elemento {
    std::vector<long> nodos;
    double puntos = 0, lado12 = 0, lado23 = 0, lado31 = 0, material = 0;
  };
  const std::vector<Elemento>& Elementos() const { return elementos_; }
  long Actual() const { return actual_; }

 private:
  bool GuardarActual(Interfaz& ui);
  void Mostrar();
  Proyecto& p_;
  std::vector<Elemento> elementos_;
  long actual_ = 0;  // 1-based, 0 none
};

// "Insertar elementos": where a new element goes.
class PantallaInsertarElementos : public Pantalla {
 public:
  explicit PantallaInsertarElementos(long elementos);
  void Activar(Interfaz&) override {}
  long posición = -1;  // 0-based place of the new element; -1 cancelled
};

// "Caracterización de los elementos"
class PantallaMateriales : public Pantalla {
 public:
  explicit PantallaMateriales(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);
  void Modificar(Interfaz& ui);
  void Aceptar(Interfaz& ui);
  void Cancelar(Interfaz& ui);

 private:
  void Mostrar();
  Proyecto& p_;
  std::vector<double> material_;
  bool cambiado_ = false;
};

// "Condición de borde  (base de fundación y bordes laterales no afectados)"
class PantallaRestricciones : public Pantalla {
 public:
  explicit PantallaRestricciones(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);
  void Agregar(Interfaz& ui);
  void Modificar(Interfaz& ui);
  void Borrar(Interfaz& ui);
  void Aceptar(Interfaz& ui);

  struct Fila {
    double nodo;
    std::string rx, ry, rz;
    double kx, ky, kz;
  };
  const std::vector<Fila>& Filas() const { return filas_; }

 private:
  bool LeerCajas(Interfaz& ui, Fila& f);
  void Mostrar();
  Proyecto& p_;
  std::vector<Fila> filas_;
};

// "Cargas uniformes distribuidas sobre los elementos"
class PantallaCargasElementos : public Pantalla {
 public:
  explicit PantallaCargasElementos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void ElegirElemento(Interfaz& ui);
  void Seleccionar(Interfaz& ui);
  void Agregar(Interfaz& ui);
  void Modificar(Interfaz& ui);
  void Borrar(Interfaz& ui);
  void Aceptar(Interfaz& ui);

  struct Fila {
    double elemento, qx, qy, nodo1, nodo2;
  };
  const std::vector<Fila>& Filas() const { return filas_; }

 private:
  bool LeerCajas(Interfaz& ui, bool modificar, Fila& f);
  void Mostrar();
  Proyecto& p_;
  std::vector<Fila> filas_;
  long actual_ = 0;
};

// "Parámetros de los estratos": elastic properties of the soil strata for the stress analyses.
class PantallaParámetrosEstratos : public Pantalla {
 public:
  explicit PantallaParámetrosEstratos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);
  void Modificar(Interfaz& ui);
  void Aceptar(Interfaz& ui);
  void Cancelar(Interfaz& ui);

 private:
  void Mostrar();
  Proyecto& p_;
  std::vector<std::vector<double>> filas_;  // E, nu, viscosity, Ko per stratum
};

// Copies node numbers and coordinates into the element tables (looked up from the last row of
// the node table to the first) and computes the mean points.
void CopiarNodosAElementos(Proyecto& p);

// Side files: c:\CarpetaCoordenadas\coordenadas.cod and c:\CarpetaElementos\elementos.cod.
std::string RutaArchivoCoordenadasNodos();
std::string RutaArchivoElementos();
LecturaLateral LeerArchivoCoordenadasNodos(Proyecto& p, const std::string& ruta);
LecturaLateral LeerArchivoElementos(Proyecto& p, const std::string& ruta);

// Menu commands of "&Elementos finitos".
void CaracterísticasElásticas(Proyecto& p, Interfaz& ui);
void MenúCoordenadasNodos(Proyecto& p, Interfaz& ui);
void NodosParaCadaElemento(Proyecto& p, Interfaz& ui);
void CaracterizaciónElementos(Proyecto& p, Interfaz& ui);
void NodosConRestricción(Proyecto& p, Interfaz& ui);
void CargasUniformesSobreElementos(Proyecto& p, Interfaz& ui);
void PresionesDePoros(Proyecto& p, Interfaz& ui);
// The section with the mesh drawn on it: nodes and elements with their numbers, materials,
// restrictions and loads.
void GráficoGeometríaTaludEstratos(Proyecto& p, Interfaz& ui);

extern const char* const kPreguntaMaterialesAlGuardar;

}  // namespace lomaterra
