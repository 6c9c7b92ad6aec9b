#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs a finished build into an empty folder, checks what lies there with the distribution's own
# validators, starts the program from there, uninstalls and proves that nothing is left; then builds
# the Debian package, checks it, and installs and removes it inside a folder.
#
# packaging/check-install.sh BUILD_DIR
#
# A validator that is not installed is named and left out, unless BROLK_CHECK_STRICT=1 makes that an
# error. Touches nothing outside of BUILD_DIR and a temporary folder.
set -euo pipefail

[ $# = 1 ] || { echo "usage: $0 BUILD_DIR" >&2; exit 2; }
build=$(cd "$1" && pwd)
source=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
prefix=$work/prefix
app_id=org.example.brolkplus
left_out=()
program_pid=

clean_up() {
  [ -z "$program_pid" ] || kill "$program_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT

say() { printf '\n== %s\n' "$*"; }
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }

# True if the tool is there; otherwise notes that its check is left out.
have() {
  command -v "$1" >/dev/null && return 0
  [ "${BROLK_CHECK_STRICT:-0}" != 1 ] || fail "$1 is not installed"
  echo "left out: $1 is not installed"
  left_out+=("$1")
  return 1
}

# Files and links below a folder, without the folder's own name, sorted.
list_files() { (cd "$1" && find . ! -type d | LC_ALL=C sort); }

install_into_prefix() {
  say "Installing into an empty folder"
  rm -f "$build/install_folders.txt"
  cmake --install "$build" --prefix "$prefix" >"$work/install.log"
  list_files "$prefix"
  local wanted
  for wanted in bin/brolkplus bin/brolkplus-desktop lib/brolkplus/brolkplus \
    "lib/brolkplus/BrolkPlus-Help.chm" "lib/brolkplus/Brolk Plus Help file.chm" \
    "share/applications/$app_id.desktop" "share/metainfo/$app_id.metainfo.xml" \
    share/mime/packages/brolkplus.xml "share/icons/hicolor/scalable/apps/$app_id.svg" \
    "share/icons/hicolor/256x256/apps/$app_id.png" share/man/man1/brolkplus.1.gz \
    share/doc/brolkplus/copyright share/doc/brolkplus/manual/index.html \
    share/doc/brolkplus/manual/pictures/main.png share/doc/brolkplus/examples/sampler.gba; do
    [ -e "$prefix/$wanted" ] || fail "$wanted was not installed"
  done
  [ "$(readlink "$prefix/bin/brolkplus")" = ../lib/brolkplus/brolkplus ] ||
    fail "bin/brolkplus is not a relative link to the program"
}

check_desktop_entry() {
  say "Desktop entry"
  local entry=$prefix/share/applications/$app_id.desktop
  if have desktop-file-validate; then
    # The validator ends with success when it has only warnings to tell.
    desktop-file-validate "$entry" >"$work/desktop.log" 2>&1 || { cat "$work/desktop.log"; fail "$entry"; }
    [ ! -s "$work/desktop.log" ] || { cat "$work/desktop.log"; fail "$entry has warnings"; }
  fi
  local key command
  for key in Exec TryExec; do
    command=$(sed -n "s/^$key=\([^ ]*\).*/\1/p" "$entry")
    [ -x "$prefix/bin/$command" ] || fail "$key=$command is not among the installed programs"
  done
  [ -e "$prefix/share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$entry").svg" ] ||
    fail "the icon of the desktop entry is not installed"
}

check_metainfo() {
  say "AppStream metainfo"
  if have appstreamcli; then
    appstreamcli validate --no-net "$prefix/share/metainfo/$app_id.metainfo.xml" || fail "metainfo"
  fi
}

check_file_types() {
  say "File types"
  if have xmllint; then
    xmllint --noout "$prefix/share/mime/packages/brolkplus.xml"
  fi
  have update-mime-database || return 0
  "$source/packaging/tests/check_mime.sh" "$prefix/share/mime/packages/brolkplus.xml"
}

# The manual tells where the sample ROMs lie and which there are.
check_samples() {
  say "Sample ROMs"
  local folder=$prefix/share/doc/brolkplus/examples chapter=$source/docs/manual/sample.md sample
  grep -q '`/usr/share/doc/brolkplus/examples`' "$chapter" || fail "the manual tells another folder"
  sed -n 's/^| `\(sampler[.][a-z]*\)` .*/\1/p' "$chapter" | LC_ALL=C sort >"$work/told-samples"
  (cd "$folder" && find . -type f -printf '%P\n' | LC_ALL=C sort) | diff "$work/told-samples" - ||
    fail "the manual tells of other sample ROMs"
  while IFS= read -r sample; do
    [ "$(stat -c %s "$folder/$sample")" = 131072 ] || fail "$sample has another length"
  done <"$work/told-samples"
}

check_man_page() {
  say "Man page"
  gzip -t "$prefix/share/man/man1/brolkplus.1.gz"
  gzip -dc "$prefix/share/man/man1/brolkplus.1.gz" >"$work/brolkplus.1"
  if have man; then
    sh "$source/docs/manual/tests/check_man.sh" "$work/brolkplus.1"
    man -M "$prefix/share/man" -w brolkplus brolkplus-desktop
  fi
}

check_manual() {
  say "Manual"
  local page
  while IFS= read -r page; do
    [ -e "$prefix/share/doc/brolkplus/manual/$page.html" ] || fail "chapter $page is not installed"
  done < <(grep '^[a-z]' "$source/docs/manual/chapters.txt")
  [ "$(head -c 4 "$prefix/lib/brolkplus/BrolkPlus-Help.chm")" = ITSF ] || fail "no compiled help"
}

# Starts a command of the prefix for two seconds, with a home and settings of its own.
start_for_two_seconds() {
  local command=$1 home=$work/home
  rm -rf "$home"
  mkdir -p "$home" "$work/runtime" "$work/tmp" "$work/started-in"
  chmod 700 "$work/runtime"
  (
    cd "$work/started-in"
    exec env -i HOME="$home" PATH="$prefix/bin:/usr/bin:/bin" LANG=C.UTF-8 TMPDIR="$work/tmp" \
      XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=offscreen \
      BROLKPLUS_SETTINGS="$home/settings" "$command"
  ) >"$work/program.log" 2>&1 &
  program_pid=$!
  sleep 2
  if ! kill -0 "$program_pid" 2>/dev/null; then
    program_pid=
    cat "$work/program.log"
    fail "$command did not stay up"
  fi
  readlink -f "/proc/$program_pid/exe"
  readlink -f "/proc/$program_pid/cwd" >"$work/cwd"
  [ "$(readlink -f "/proc/$program_pid/exe")" = "$prefix/lib/brolkplus/brolkplus" ] ||
    fail "$command started another program"
  kill "$program_pid"
  wait "$program_pid" 2>/dev/null || true
  program_pid=
}

check_start() {
  say "Starting the installed program"
  start_for_two_seconds brolkplus
  [ "$(cat "$work/cwd")" = "$work/started-in" ] || fail "brolkplus changed its folder"
  start_for_two_seconds brolkplus-desktop
  [ "$(cat "$work/cwd")" = "$work/home/Brolk Plus" ] || fail "brolkplus-desktop runs in $(cat "$work/cwd")"
  [ "$(head -c 4 "$work/home/Brolk Plus/Brolk Plus Help file.chm")" = ITSF ] ||
    fail "the help file of the menu is not in the program's folder"
}

check_uninstall() {
  say "Uninstalling"
  cmake --build "$build" --target uninstall >"$work/uninstall.log"
  [ ! -d "$prefix" ] || [ -z "$(find "$prefix" -mindepth 1)" ] || {
    find "$prefix" -mindepth 1
    fail "the uninstall left this behind"
  }
}

build_package() {
  say "Building the Debian package"
  (cd "$work" && cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work/deb") >"$work/cpack.log" ||
    { cat "$work/cpack.log"; fail "cpack"; }
  package=$(find "$work/deb" -maxdepth 1 -name '*.deb')
  [ -f "$package" ] || fail "no package was built"
  dpkg-deb --info "$package"
}

check_package_content() {
  say "The package holds what the installation holds"
  dpkg-deb -x "$package" "$work/unpacked"
  diff <(list_files "$work/unpacked/usr") "$work/installed-files" || fail "the lists differ"
  local depends
  depends=$(dpkg-deb -f "$package" Depends)
  case $depends in
    *libqt6widgets6*) ;;
    *) fail "the libraries are not among the dependencies: $depends" ;;
  esac
  [ "$(dpkg-deb -f "$package" Recommends)" = "kchmviewer | xchm, xdg-user-dirs" ] || fail "Recommends"
}

lint_package() {
  say "lintian"
  have lintian || return 0
  local options=(--fail-on error --tag-display-limit 0)
  [ "$(id -u)" != 0 ] || options+=(--allow-root)
  lintian "${options[@]}" "$package" || fail "lintian has errors"
}

# In a package database of its own, so that the system is not touched.
check_package_install() {
  say "Installing and removing the package"
  [ "$(id -u)" = 0 ] || { echo "left out: needs root"; left_out+=("dpkg --install"); return 0; }
  local root=$work/root
  mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
  : >"$root/var/lib/dpkg/status"
  local -a dpkg=(dpkg "--root=$root" --force-depends --log="$work/dpkg.log")
  "${dpkg[@]}" --install "$package" >"$work/dpkg.out" 2>&1 || { cat "$work/dpkg.out"; fail "dpkg --install"; }
  diff <(list_files "$root/usr") "$work/installed-files" || fail "the lists differ"
  "${dpkg[@]}" --purge brolkplus >>"$work/dpkg.out" 2>&1 || { cat "$work/dpkg.out"; fail "dpkg --purge"; }
  [ ! -d "$root/usr" ] || [ -z "$(find "$root/usr" -mindepth 1)" ] || fail "the package left files behind"
}

install_into_prefix
list_files "$prefix" >"$work/installed-files"
check_desktop_entry
check_metainfo
check_file_types
check_samples
check_man_page
check_manual
check_start
check_uninstall
build_package
check_package_content
lint_package
check_package_install

say "Done"
[ ${#left_out[@]} = 0 ] || echo "Left out for want of a tool: ${left_out[*]}"
