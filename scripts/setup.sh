#!/usr/bin/env bash
# Installs the Debian packages that are missing and fetches the editor's toolkit. Run as root; quick when nothing is
# missing.
#   scripts/setup.sh run     what the program itself needs
#   scripts/setup.sh test    that, and what the tests, sanitizers, fuzzers and benchmarks need
set -euo pipefail
export LC_ALL=C DEBIAN_FRONTEND=noninteractive

run_packages="g++ cmake ninja-build pkg-config ca-certificates libfmt-dev libcli11-dev rapidjson-dev libtbb-dev libhwy-dev
  libavformat-dev libavcodec-dev libavutil-dev libswscale-dev libfreetype-dev libfontconfig-dev fonts-liberation
  libx11-dev libxcb1-dev libxcb-util-dev libxcb-cursor-dev libxcb-keysyms1-dev libxcb-xkb-dev libxcb-randr0-dev
  libxkbcommon-dev libxkbcommon-x11-dev libcairo2-dev libpango1.0-dev libglib2.0-dev librsvg2-bin"
test_packages="clang-19 clang-format-19 libclang-rt-19-dev libgtest-dev locales ffmpeg opencolorio-tools git
  libopencolorio-dev libavfilter-dev g++-aarch64-linux-gnu qemu-user xvfb xauth xdotool
  libgnustep-base-dev libgnustep-gui-dev gnustep-gui-runtime gnustep-back0.29-cairo"

missing() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done
}

install() {
  local wanted
  wanted=$(missing "$@")
  [ -n "$wanted" ] || return 0
  echo "setup: installing" $wanted >&2
  apt-get -qq -o DPkg::Lock::Timeout=900 -o Acquire::Retries=5 update >&2
  apt-get -qq -y -o DPkg::Lock::Timeout=900 -o Acquire::Retries=5 -o Dpkg::Use-Pty=0 install --no-install-recommends \
    $wanted >/dev/null
}

# Tests of number texts use a locale with a decimal comma.
german_locale() {
  locale -a 2>/dev/null | grep -qix 'de_DE.utf-\?8' && return 0
  localedef -i de_DE -f UTF-8 de_DE.UTF-8
}

case ${1:-run} in
  run)
    install $run_packages
    "$(dirname "$0")/fetch_vstgui.sh" >/dev/null
    ;;
  test)
    install $run_packages $test_packages
    german_locale
    "$(dirname "$0")/fetch_vstgui.sh" >/dev/null
    ;;
  *)
    echo "setup: 'run' or 'test', not '$1'" >&2
    exit 2
    ;;
esac
