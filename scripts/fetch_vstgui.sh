#!/usr/bin/env bash
# Fetches the toolkit VSTGUI, verifies it and unpacks it into build/deps/vstgui. Unattended; does nothing if it is already there.
# Debian 12 has no VSTGUI; newer suites have it as a component of the source package vst3sdk. The mirror is the one that
# apt uses on this machine. The first pinned version that is available is taken.
#   scripts/fetch_vstgui.sh [4.15.0|4.13.3]     prints the unpacked folder on its last line
set -euo pipefail
export LC_ALL=C DEBIAN_FRONTEND=noninteractive
here=$(cd "$(dirname "$0")" && pwd)
prefix=$here/../build/deps/vstgui cache=$here/../build/deps/cache
corrections=1 # raised when unpack corrects something else
say() { echo "vstgui: $*" >&2; }

pin() { # version -> its name in the archive, the suites that carry it, its SHA-256
  case $1 in
    4.15.0) file='vst3sdk_3.8.0.66+~4.15.0.orig-vstgui4.tar.gz' suites='forky sid'
            sha=e8026cc2347241755b7d3cbaa93b608fa65306d9eeae4b3e36c34a5fdd4c3405;;
    4.13.3) file='vst3sdk_3.7.10.14+~4.13.3.orig-vstgui4.tar.gz' suites=trixie
            sha=5a7673c7b22a66086a6749a0c7ff447fcfc4a10d2c2013d58ff1320be4e8456f;;
    *) say "ERROR: no pin for VSTGUI $1"; exit 2;;
  esac
}
ok() { [ -f "$1" ] && echo "$sha  $1" | sha256sum -c --status; }

download() { # the signed index of the carrying suites must not contradict the pinned hash
  local w mirror s signed o
  w=$(mktemp -d); mkdir -p "$w/lists/partial" "$w/cache/archives/partial"
  mirror() { apt-get indextargets --format '$(REPO_URI)' 2>/dev/null | grep -E '/debian/?$' | sort | head -n 1; }
  m=$(mirror); [ -n "$m" ] || { apt-get -q update >&2; m=$(mirror); }
  [ -n "$m" ] || { say "this machine's apt knows no Debian mirror"; rm -rf "$w"; return 1; }
  m=${m%/}
  for s in $suites; do echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $m $s main"; done > "$w/sources.list"
  o=(-o Dir::Etc::SourceList="$w/sources.list" -o Dir::Etc::SourceParts=/dev/null -o Dir::State::Lists="$w/lists"
     -o Dir::Cache="$w/cache" -o APT::Sandbox::User=root -o Acquire::Retries=5 -o Acquire::Languages=none
     -o Acquire::Check-Valid-Until=false -o Acquire::Check-Date=false)
  signed=
  if apt-get "${o[@]}" -q update >&2; then
    signed=$({ apt-cache "${o[@]}" showsrc vst3sdk 2>/dev/null || true; } | awk -v f="$file" '$3==f && length($1)==64 {print $1}' | sort -u)
  fi
  case $signed in
    "$sha") say "the signed index of [$suites] lists the pinned hash";;
    "") say "no signed index of [$suites] lists $file: the pinned SHA-256 alone decides";;
    *) say "ERROR: the signed index lists another hash for $file: $signed"; rm -rf "$w"; exit 1;;
  esac
  local esc=pool/main/v/vst3sdk/${file//+/%2b}; esc=${esc//\~/%7e}
  /usr/lib/apt/apt-helper "${o[@]}" download-file "$m/$esc" "$w/t" "SHA256:$sha" >&2 && ok "$w/t" && mv "$w/t" "$cache/$file"
  rm -rf "$w"; ok "$cache/$file"
}

unpack() { # without tests, tools and the user-interface editor
  local dest=$prefix/$1 t=$prefix/.new.$$ d x=()
  [ "$(cat "$dest/.ok" 2>/dev/null)" = "$sha $corrections" ] && return
  rm -rf "$t"; mkdir -p "$t"
  for d in tests tools standalone doxygen Documentation contrib uidescription-scripting thirdparty/expat thirdparty/rapidjson \
    thirdparty/miniz uidescription/editing uidescription/viewcreator; do x+=(--exclude="*/vstgui/$d"); done
  tar -xzf "$cache/$file" -C "$t" --strip-components=1 --no-same-owner --wildcards "${x[@]}"
  [ -f "$t/vstgui/vstgui_linux.cpp" ] && [ -f "$t/LICENSE" ]
  # The toolkit never frees the X server's reply about the pointer, which it requests for every dialogue and menu.
  sed -i 's/mousePosition\.y = reply->win_y;/& free (reply);/' "$t/vstgui/lib/platform/linux/x11frame.cpp"
  echo "$sha $corrections" > "$t/.ok"; rm -rf "$dest"; mv "$t" "$dest"
}

mkdir -p "$cache" "$prefix"
prefix=$(cd "$prefix" && pwd)
exec 9>"$cache/lock"; flock 9
for version in ${1:-4.15.0 4.13.3}; do
  pin "$version"
  if ! ok "$cache/$file" && ok "$here/$file"; then cp "$here/$file" "$cache/$file"; fi
  if ok "$cache/$file" || download; then
    unpack "$version"; say "ready: $prefix/$version"; echo "$prefix/$version"; exit 0
  fi
  say "VSTGUI $version cannot be had from this mirror"
done
say "ERROR: no pinned VSTGUI could be had; put one of the two tarballs beside this script"; exit 1
