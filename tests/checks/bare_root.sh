#!/usr/bin/env bash
# Both commands on a machine that has nothing yet: a bare Debian 12 in a folder, made from this machine's own package
# sources, with a clone of the last commit. ./run as somebody who may install nothing, who is told what is missing; ./run as
# root up to the first painted window; ./test on a handful of tests. The compiler's cache is shared, what is installed is not.
# Ends as skipped when the package source cannot be reached; every other failure is a failure.
set -euo pipefail
project=$(cd "$(dirname "$(readlink -f "$0")")/../.." && pwd)
suite=bookworm
handful='^(checks\.|shipped\.|road\.newcomer|weightlog\.Rewards|core_windows\.Frame)'

if ((EUID != 0)); then
  command -v sudo >/dev/null || { echo "Only root can make a bare machine, and there is no sudo." >&2; exit 1; }
  exec sudo --preserve-env=CCACHE_DIR "$0"
fi

# Outside: a folder, and everything else in namespaces that end with this script, whichever way it ends.
if (($# == 0)); then
  work=$(mktemp -d "${TMPDIR:-/var/tmp}/trimlog-bare-XXXXXX")
  own=(unshare --mount --pid --fork --kill-child --mount-proc)
  "${own[@]}" true 2>/dev/null || own=(env BARE_WITHOUT_MOUNTS=1)
  "${own[@]}" "$0" "$work" &
  inner=$!
  leave() {
    kill -KILL "$inner" 2>/dev/null && wait "$inner" 2>/dev/null || true
    rm -rf --one-file-system "$work" || { sleep 1; rm -rf --one-file-system "$work"; }
  }
  trap leave EXIT
  trap 'exit 143' TERM
  trap 'exit 130' INT
  trap 'exit 129' HUP
  wait "$inner"
  exit
fi

work=$1
root=$work/root
say() { printf -- '-- %s (%d:%02d)\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)); }

sources() {  # origin, address, release, component of what this machine installs from
  apt-get indextargets --format '$(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT) $(CREATED_BY)' |
    awk -v suite="$suite" '$1 == "Debian" && $3 ~ "^" suite && $5 == "Packages"' | sort -u
}
reachable() { /usr/lib/apt/apt-helper download-file "${mirror}dists/$suite/InRelease" "$work/InRelease" &>"$work/reach"; }
skip() {
  echo "Skipped: the package source cannot be reached, so no bare machine could be made."
  exit 0
}
fail() {
  tail -n 60 "$work/log" 2>/dev/null || true
  reachable || skip
  echo "A bare machine: $1" >&2
  exit 1
}

[[ $(sources) ]] || apt-get update &>"$work/log" || skip
mirror=$(sources | awk -v suite="$suite" '$3 == suite && $4 == "main" { print $2; exit }')
[[ $mirror ]] || fail "this machine knows no source of Debian's $suite"
eval "$(apt-config shell http_proxy Acquire::http::Proxy https_proxy Acquire::https::Proxy)"
export http_proxy https_proxy
reachable || skip

say "making it"
mkdir "$root"
include=()
[[ $mirror != https:* ]] || include=(--include=ca-certificates)
debootstrap --variant=minbase "${include[@]}" "$suite" "$root" "$mirror" &>"$work/log" || fail "it could not be made"
sources | awk '{ print "deb", $2, $3, $4 }' >"$root/etc/apt/sources.list"
apt-config dump | grep -E '^Acquire::(https?|Check-)' >"$root/etc/apt/apt.conf.d/50machine" || true
[[ $mirror != https:* ]] || cp -L /etc/ssl/certs/ca-certificates.crt "$root/etc/ssl/certs/"
cp /etc/hosts "$root/etc/hosts"
echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe"  # it lives for minutes only
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"  # it shares its processes and network with this machine
chmod +x "$root/usr/sbin/policy-rc.d"
chroot "$root" useradd --create-home ann
for home in root home/ann; do
  git -c safe.directory='*' clone -q --depth 1 "file://$project" "$root/$home/trimlog"
done
chroot "$root" chown -R ann: /home/ann/trimlog

if [[ -z ${BARE_WITHOUT_MOUNTS-} ]]; then
  mount -t proc proc "$root/proc"
  mount --rbind /dev "$root/dev"
  cache=$(ccache --get-config cache_dir)
  mkdir -p "$cache" "$root/root/.cache/ccache"
  mount --bind "$cache" "$root/root/.cache/ccache"
fi

# inside USER COMMAND: replaces this process by the command in the user's clone.
inside() {
  local home=/root
  [[ $1 == root ]] || home=/home/$1
  exec chroot "$root" /usr/sbin/runuser -u "$1" -- env -i -C "$home/trimlog" HOME="$home" PATH="$PATH" LANG=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=qt.widgets.painting.info=true bash -c "$2" </dev/null
}

say "./run by a user who may not install"
if (inside ann ./run) &>"$work/log" || ! grep -q 'missing, and there is no sudo to install them: .*qt6-base-dev' "$work/log"; then
  fail "./run did not tell a user what is missing"
fi

say "./run as root"
(inside root ./run) &>"$work/log" &
program=$!
until grep -q 'Flushing QRegion.* of trimlog::frm[^S]' "$work/log"; do
  kill -0 "$program" 2>/dev/null || fail "./run ended before a window was painted"
  ((SECONDS < 2400)) || fail "./run paints no window"
  sleep 0.5
done
say "a window is painted"
kill "$program"
wait "$program" || true

say "./test on a handful"
(inside root "./test --no-tests=error -R '$handful'") &>"$work/log" || fail "./test failed"
tail -n 5 "$work/log"
say "A bare machine runs and tests it"
