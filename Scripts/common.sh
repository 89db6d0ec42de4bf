# shellcheck shell=bash disable=SC2034,SC2154
# Shared by ./run and ./test; sourced by bash, with `root` set to the checkout. Its variables are for
# them (SC2034), and `root` comes from them (SC2154).

say() { printf '== %s\n' "$*" >&2; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# What building takes, and what the tests take beyond that.
build_packages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev
  qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qcoro-qt6-dev libsimdjson-dev libglib2.0-dev
  libplist-dev libpng-dev libxcb1-dev libxcb-xkb-dev libxkbcommon-dev libxkbcommon-x11-dev sqlite3)
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev qt6-image-formats-plugins qt6-translations-l10n clang-19
  clang-format-19 clang-tidy-19 libclang-19-dev libclang-rt-19-dev llvm-19-dev shellcheck git python3 python3-flake8
  python3-yaml desktop-file-utils bubblewrap util-linux jq chromium firefox-esr xvfb openbox xdotool x11-utils
  imagemagick dbus wmctrl trayer xfce4-panel xdg-utils libglib2.0-bin python3-gi fonts-dejavu-core libxcb-xtest0-dev
  x11-xkb-utils xdg-desktop-portal icnsutils libplist-utils at-spi2-core gir1.2-atspi-2.0 xclip
  bash-completion zsh fish)
demo_packages=(python3)
# For macOS, which has sqlite3 and, with Apple's command line tools, clang, git and python3. The last two are for tests.
brew_formulas=(cmake ninja ccache pkgconf qt simdjson googletest google-benchmark libplist libpng libicns imagemagick)
# Homebrew has no formula for it.
qcoro_source=https://github.com/danvratil/qcoro
qcoro_version=v0.11.0

is_mac() { [ "$(uname)" = Darwin ]; }

# Where the programs of a preset are.
programs_of() {
  if is_mac; then
    printf '%s\n' "$root/build/$1/Vantrel.app/Contents/MacOS"
  else
    printf '%s\n' "$root/build/$1"
  fi
}

# Runs a command as the administrator, who alone can install packages.
as_administrator() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "this needs an administrator: run as root, or install sudo: $*"
  fi
}

missing_debian_packages() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s\n' "$package"
  done
}

install_debian_packages() {
  local missing
  mapfile -t missing < <(missing_debian_packages "$@")
  [ "${#missing[@]}" = 0 ] && return
  say "Installing with apt: ${missing[*]}"
  as_administrator env DEBIAN_FRONTEND=noninteractive apt-get update -q >&2
  as_administrator env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}" >&2 </dev/null
}

install_brew_formulas() {
  local formula missing=()
  for formula in "$@"; do
    brew list --versions "$formula" >/dev/null 2>&1 || missing+=("$formula")
  done
  [ "${#missing[@]}" = 0 ] && return
  say "Installing with brew: ${missing[*]}"
  brew install "${missing[@]}" >&2 </dev/null
}

# Builds QCoro within the build folder, once, and has cmake find it.
provide_qcoro() {
  local folder=$root/build/qcoro
  export CMAKE_PREFIX_PATH=$folder/installed
  [ ! -f "$folder/done-$qcoro_version" ] || return 0
  say "Building QCoro $qcoro_version"
  rm -rf "$folder"
  {
    git clone --quiet --depth 1 --branch "$qcoro_version" "$qcoro_source" "$folder/source"
    cmake -S "$folder/source" -B "$folder/build" -G Ninja -D CMAKE_BUILD_TYPE=Release -D USE_QT_VERSION=6 \
      -D CMAKE_INSTALL_PREFIX="$folder/installed" -D BUILD_TESTING=OFF -D QCORO_BUILD_EXAMPLES=OFF \
      -D QCORO_WITH_QTDBUS=OFF -D QCORO_WITH_QTWEBSOCKETS=OFF -D QCORO_WITH_QTQUICK=OFF -D QCORO_WITH_QML=OFF
    cmake --build "$folder/build" --target install
  } >&2
  touch "$folder/done-$qcoro_version"
}

# Installs what is missing of the Debian packages named, or what Homebrew calls them.
install_dependencies() {
  if command -v apt-get >/dev/null; then
    install_debian_packages "$@"
  elif command -v brew >/dev/null; then
    install_brew_formulas "${brew_formulas[@]}"
    provide_qcoro
  else
    fail "neither apt-get nor brew is here. Install these, by your system's names for them: $*"
  fi
}

# With sudo, everything but the installing is done as the person who called it, so that the build folder stays theirs.
continue_as_caller() {
  local owner
  [ "$(id -u)" = 0 ] && [ -n "${SUDO_UID:-}" ] && [ "$SUDO_UID" != 0 ] || return 0
  owner=$(stat -c %u "$root" 2>/dev/null || stat -f %u "$root")
  [ "$owner" = "$SUDO_UID" ] || return 0
  exec sudo -H -u "#$SUDO_UID" --preserve-env=DISPLAY,WAYLAND_DISPLAY,XAUTHORITY,CI -- "$0" "$@"
}

# Builds a preset's targets: `build release vantrel`.
build() {
  local preset=$1
  shift
  say "Building ($preset)"
  (cd "$root" && cmake --preset "$preset" >/dev/null && cmake --build --preset "$preset" --target "$@" -- --quiet) >&2
}
