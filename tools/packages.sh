# Sourced by ./run, ./test, ./bench and ./package: installs the Debian packages that are missing.

need_packages() {
  missing=""
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $package"
  done
  [ -z "$missing" ] && return 0
  as_root=""
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "these packages are needed, and neither root nor sudo is at hand:$missing" >&2; return 1; }
    as_root="sudo"
  fi
  echo "installing:$missing" >&2
  # The lists of a new machine are empty or old.
  $as_root apt-get update -qq >&2 || true
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >&2
}

BUILD_PACKAGES="g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgl-dev libqcustomplot-dev"
RUN_PACKAGES="libqt6widgets6 libqt6printsupport6 libqt6svg6 libqcustomplot2.1-qt6 qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core"
TEST_PACKAGES="libgtest-dev python3 poppler-utils"
BENCH_PACKAGES="python3 python3-numpy python3-pandas libhpdf-dev"
PACKAGE_PACKAGES="dpkg-dev file gzip desktop-file-utils appstream lintian"
