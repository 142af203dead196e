#!/usr/bin/env bash
# Prueba de mutantes: aplica uno por uno los deslices de scripts/mutantes.txt a una copia del
# árbol (build/mutantes/fuente, con los cambios aún sin guardar en git), recompila solo lo que
# cambió con el preset sin Qt, corre los ejecutables de prueba y cuenta cuántos deslices atrapan.
# El árbol de trabajo no se toca nunca. No corre en la integración continua: tarda (una compilación
# por mutante).
#
#   bash scripts/mutantes.sh              todos los mutantes de la lista
#   bash scripts/mutantes.sh poros bishop solo las lineas que contienen alguna de esas palabras
#
# Formato de la lista: archivo @@ texto exacto @@ reemplazo [@@ nota]. El texto debe aparecer una
# sola vez en el archivo; si ya no aparece el mutante se informa como "no aplica" y no cuenta.
# Una nota que empieza con "equivalente:" explica por qué ese mutante no puede atraparse.
set -u
raiz=$(cd "$(dirname "$0")/.." && pwd)
lista="$raiz/scripts/mutantes.txt"
revision=${LOMATERRA_MUTANTES_REVISION:-}
copia="$raiz/build/mutantes/${revision:-fuente}"
obra="$copia/build/nucleo"
tiempo=${LOMATERRA_MUTANTES_TIEMPO:-120}
registro="$raiz/build/mutantes/registro${revision:+-$revision}.txt"

# La copia: solo se reescriben los archivos que difieren, con la hora actual, para que ninja
# recompile exactamente esos. Con LOMATERRA_MUTANTES_REVISION=REV la copia es la de esa revisión
# (en su propia carpeta), para comparar la fuerza de las pruebas de antes y de ahora.
mkdir -p "$copia"
python3 - "$raiz" "$copia" "$revision" <<'PY'
import os, subprocess, sys
raíz, copia, rev = sys.argv[1], sys.argv[2], sys.argv[3]
git = lambda *a: subprocess.run(["git", "-C", raíz, *a], check=True, capture_output=True).stdout
if rev:
    archivos = set(git("ls-tree", "-r", "--name-only", rev).decode().split("\n")) - {""}
    contenido = lambda r: git("show", f"{rev}:{r}")
else:
    archivos = set(git("ls-files", "-co", "--exclude-standard").decode().split("\n")) - {""}
    archivos = {r for r in archivos if os.path.isfile(os.path.join(raíz, r))}
    contenido = lambda r: open(os.path.join(raíz, r), "rb").read()
for r in archivos:
    d = os.path.join(copia, r)
    datos = contenido(r)
    if os.path.isfile(d) and open(d, "rb").read() == datos: continue
    os.makedirs(os.path.dirname(d), exist_ok=True)
    open(d, "wb").write(datos)
for carpeta, subs, nombres in os.walk(copia):
    if os.path.relpath(carpeta, copia) == ".": subs[:] = [s for s in subs if s != "build"]
    for n in nombres:
        r = os.path.relpath(os.path.join(carpeta, n), copia)
        if r not in archivos: os.remove(os.path.join(copia, r))
PY
cd "$copia" || exit 1
mutado=""
original=$(mktemp)
devolver() {
  if [ -n "$mutado" ]; then
    cat "$original" >"$mutado"  # con la hora actual: la próxima compilación lo rehace
    mutado=""
  fi
}
trap 'devolver; exit 130' INT TERM
trap 'devolver; rm -f "$original"' EXIT

# El preset sin Qt, optimizado a medias y sin información de depuración: compila más rápido.
[ -f "$obra/build.ninja" ] ||
  cmake --preset nucleo -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O1 -DNDEBUG" >/dev/null || exit 1
mkdir -p "$(dirname "$registro")"

ejecutables() {
  (cd "$obra" && ninja -t targets all 2>/dev/null) | sed -n 's/^\(prueba_[a-z_]*\): phony$/\1/p' | sort -u
}
compilar() { cmake --build "$obra" -j "${LOMATERRA_MUTANTES_HILOS:-2}" --target "$@" >"$obra/mutante-compilacion.txt" 2>&1; }
# Corre un ejecutable de prueba; se detiene en el primer fallo. 0 si todas pasan.
correr() {
  local e
  e=$(find "$obra/pruebas" -maxdepth 1 -name "$1" -type f -perm -u+x | head -n 1)
  [ -n "$e" ] || return 0
  (cd "$obra/pruebas" && timeout "$tiempo" "$e" --gtest_fail_fast --gtest_brief=1 >/dev/null 2>&1)
}

# Primero el ejecutable del area del archivo mutado (el más rápido en atraparlo); solo si
# sobrevive se compilan y corren los demás. Devuelve 0 si sobrevive, 1 si lo atrapan, 2 si no compila.
probar() {
  local area=$1 t
  local propio="prueba_$area"
  case $area in pantallas|proyecto|salida|equilibrio|elementos|sismico) ;; *) propio="" ;; esac
  if [ -n "$propio" ]; then
    compilar "$propio" || return 2
    correr "$propio" || return 1
  fi
  local resto=()
  for t in $(ejecutables); do [ "$t" = "$propio" ] || resto+=("$t"); done
  compilar "${resto[@]}" lomaterra-lote || return 2
  for t in "${resto[@]}"; do correr "$t" || return 1; done
  return 0
}

echo "Compilando sin mutantes..."
compilar $(ejecutables) lomaterra-lote || { echo "No compila sin mutantes: $obra/mutante-compilacion.txt"; exit 1; }
for t in $(ejecutables); do
  correr "$t" || { echo "$t falla sin mutantes: arregle eso primero."; exit 1; }
done

filtro=("$@")
total=0 atrapados=0 noaplica=0 nocompila=0 equivalentes=0
sobrevivientes=()
: >"$registro"
n=0
while IFS= read -r linea || [ -n "$linea" ]; do
  case "$linea" in ''|'#'*) continue ;; esac
  n=$((n + 1))
  if [ ${#filtro[@]} -gt 0 ]; then
    coincide=0
    for f in "${filtro[@]}"; do [[ "$linea" == *"$f"* ]] && coincide=1; done
    [ $coincide = 1 ] || continue
  fi
  archivo=${linea%% @@ *}
  nota=$(printf '%s' "$linea" | awk -F ' @@ ' '{print $4}')
  if [[ "$nota" == equivalente:* ]]; then
    echo "M$n equivalente, no cuenta  $archivo  [$nota]" | tee -a "$registro"
    equivalentes=$((equivalentes + 1))
    continue
  fi
  if [ ! -f "$archivo" ]; then
    echo "M$n no aplica: no existe $archivo" | tee -a "$registro"
    noaplica=$((noaplica + 1))
    continue
  fi
  cp "$archivo" "$original"
  mutado=$archivo
  # El reemplazo, con Python para tratar el texto como texto y no como expresión regular.
  if ! LINEA="$linea" python3 - "$archivo" <<'PY'
import os, sys
partes = os.environ["LINEA"].split(" @@ ")
ruta, buscar, poner = sys.argv[1], partes[1], partes[2]
texto = open(ruta, encoding="utf-8").read()
if texto.count(buscar) != 1:
    sys.exit(1)
open(ruta, "w", encoding="utf-8").write(texto.replace(buscar, poner))
PY
  then
    mutado=""
    echo "M$n no aplica: el texto no aparece una sola vez en $archivo" | tee -a "$registro"
    noaplica=$((noaplica + 1))
    continue
  fi
  probar "$(printf '%s' "$archivo" | awk -F/ '{print $2}')"
  case $? in
    0) estado="SOBREVIVE"; total=$((total + 1))
       sobrevivientes+=("M$n $archivo: $(printf '%s' "$linea" | awk -F ' @@ ' '{print $2 "  ->  " $3}')${nota:+  [$nota]}") ;;
    1) estado="atrapado"; total=$((total + 1)); atrapados=$((atrapados + 1)) ;;
    *) estado="no compila"; nocompila=$((nocompila + 1)) ;;
  esac
  devolver
  echo "M$n $estado  $archivo${nota:+  [$nota]}" | tee -a "$registro"
done <"$lista"

echo "Recompilando sin mutantes..."
compilar $(ejecutables) lomaterra-lote
echo
if [ $total -gt 0 ]; then
  echo "Atrapados: $atrapados de $total ($((100 * atrapados / total))%)." | tee -a "$registro"
else
  echo "Ningún mutante corrió."
fi
[ $equivalentes -gt 0 ] && echo "Equivalentes (explicados en la lista, no cuentan): $equivalentes." | tee -a "$registro"
[ $noaplica -gt 0 ] && echo "No aplican: $noaplica (revise la lista: el código cambió)." | tee -a "$registro"
[ $nocompila -gt 0 ] && echo "No compilan: $nocompila (no cuentan)." | tee -a "$registro"
if [ ${#sobrevivientes[@]} -gt 0 ]; then
  echo "Sobrevivientes:" | tee -a "$registro"
  printf '  %s\n' "${sobrevivientes[@]}" | tee -a "$registro"
fi
exit 0
