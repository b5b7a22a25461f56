# SPDX-License-Identifier: MIT
# Sourced by ./run and ./check: what the project needs from Debian, and how to get it.

build_packages=(g++ cmake ninja-build ccache qt6-base-dev libgl1-mesa-dev qt6-l10n-tools)
run_packages=(fonts-dejavu-core qt6-qpa-plugins qt6-translations-l10n qt6-wayland)
test_packages=(xvfb openbox x11-utils weston dbus-daemon git pkg-config dpkg-dev file desktop-file-utils man-db
    doxygen qt6-tools-dev libqt6opengl6-dev)
benchmark_packages=(libbenchmark-dev)
fuzz_packages=(clang libclang-rt-dev)
lint_packages=(clang-format clang-tidy)

# Installs the packages that are missing when this user may, else names the command to type.
require_packages() {
    command -v dpkg-query >/dev/null || return 0 # not Debian: the configure step names what is missing
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! sudo -n true 2>/dev/null; then
            echo "Packages are missing. Please type:" >&2
            echo "    sudo apt-get install --yes --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo -n)
    fi
    echo "Installing ${missing[*]} …"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet \
        --no-install-recommends "${missing[@]}" ||
        { "${as_root[@]}" apt-get update --quiet &&
          "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet \
              --no-install-recommends "${missing[@]}"; }
}

# Configures the preset once and builds it.
build_preset() {
    local preset=$1
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset"
}
