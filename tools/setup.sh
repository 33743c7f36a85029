# Sourced by ./run and ./check: installs what is missing, configures, builds. The caller stands in the repository.

# missing_packages LIST...: names of the packages in these lists that this machine lacks, one a line.
missing_packages() {
  local wanted
  wanted=$(grep -hv '^#' "$@")
  # An unknown or removed package is simply not among the installed ones.
  comm -23 <(sort <<<"$wanted") \
    <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $wanted 2>/dev/null |
      awk '$2 == "installed" { print $1 }' | sort)
}

# install_missing [LIST...]: installs what is missing of these lists of packages, or of tools/packages.txt.
install_missing() {
  local missing
  command -v dpkg-query >/dev/null || {
    echo "Questo comando installa i pacchetti di Debian; altrove servono quelli di tools/packages.txt." >&2
    return 0
  }
  missing=$(missing_packages "${@:-tools/packages.txt}")
  [ -z "$missing" ] || install_packages $missing
}

install_packages() {
  local as_root=()
  echo "Installo:" "$@"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Serve root oppure sudo per installare i pacchetti." >&2; return 1; }
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "$@" >/dev/null
}

# build_targets [TARGET...]: configures build/ the first time and builds these targets, or everything.
build_targets() {
  [ -f build/build.ninja ] || cmake --preset default
  cmake --build build ${1:+--target "$@"}
}
