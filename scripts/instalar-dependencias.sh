#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running Lomaterra need, only when missing.
set -euo pipefail
paquetes=(
  build-essential cmake ninja-build pkg-config
  googletest libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev
  qt6-base-dev qt6-base-dev-tools libqt6svg6-dev qt6-charts-dev libqt6opengl6-dev
  qt6-translations-l10n
  libgl1-mesa-dev libxkbcommon-dev
  fonts-dejavu-core xvfb xauth poppler-utils locales
)
faltan=()
for p in "${paquetes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
if [ ${#faltan[@]} -gt 0 ]; then
  echo "Instalando: ${faltan[*]}"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${faltan[@]}"
fi
# A Spanish locale, so the tests can check that numbers keep their decimal point under it.
if ! locale -a 2>/dev/null | grep -qi '^es_ES\.utf-\?8$'; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO localedef -i es_ES -f UTF-8 es_ES.UTF-8 || echo "Aviso: no se pudo generar la configuración regional es_ES.UTF-8"
fi
