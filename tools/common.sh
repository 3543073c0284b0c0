# Shared by the scripts of this folder: messages, root rights, places.
# Source it; it changes to the repository's root.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
repo=$PWD

# Everything that is made once and reused between checkouts lies here.
cache=${KAV_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kavoratb1c}

say() { printf '== %s\n' "$*"; }

die() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    die "needs root or sudo: $*"
  fi
}
