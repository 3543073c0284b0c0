# Shared by the scripts of this folder: messages, root rights, places.
# Source it; it changes to the repository's root.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
repo=$PWD

# Everything that is made once and reused between checkouts lies here.
cache=${KAV_CACHE:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/kavoratb1c}
mkdir -p "$cache"

say() { printf '== %s\n' "$*"; }

die() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

# To be called before anything that as_root runs has its messages sent elsewhere.
need_root() { [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null || die "needs root or sudo to install what is missing"; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

mirrors() {
  apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' |
    awk -v suite="$1" '$2 == suite && $3 == "main" && $1 ~ /^(https?|file):/ { print $1 }'
}

# The mirror that this machine itself gets a Debian suite from.
debian_mirror() {
  local found
  found=$(mirrors "$1")
  [ -n "$found" ] || as_root apt-get update >"$cache/apt.log" 2>&1 || die "apt-get update failed, see $cache/apt.log"
  found=$(mirrors "$1")
  [ -n "$found" ] || die "apt gets $1 from no mirror that other programs can use"
  head -n 1 <<<"$found"
}

debian_suite() { (. /etc/os-release && echo "$VERSION_CODENAME"); }
