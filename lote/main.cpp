// lomaterra-lote: runs commands of the core on a project file without a window.
#include <iostream>

int main() {
  std::cerr << "lomaterra-lote: en construcción\n";
  return 2;
}
