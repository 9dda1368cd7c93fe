# Sourced after packages.sh by packaging/build-deb and its like: clean systems of Debian's suites, from where this
# machine's own packages come.

# make_chroot SUITE FOLDER: a system with what every build may take for granted, unless it is there.
make_chroot() {
    local suite=$1 folder=$2 here sources
    [ ! -d "$folder" ] || return 0
    here=$(. /etc/os-release && echo "$VERSION_CODENAME")
    sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u | sed -n "s/ $here/ $suite/p")
    if [ -z "$sources" ]; then
        echo "No packages of Debian $here are set up here, so $suite cannot be found" >&2
        return 1
    fi
    as_root mkdir -p "$(dirname "$folder")"
    as_root rm -rf "$folder.new"
    as_root mmdebstrap --quiet --variant=buildd "$suite" "$folder.new" - <<<"$sources"
    apt-config dump --format '%F "%v";%n' Acquire::http Acquire::https Acquire::Check-Valid-Until |
        as_root tee "$folder.new/etc/apt/apt.conf.d/99source" >/dev/null
    as_root mv "$folder.new" "$folder"
}

# in_copy FOLDER COMMAND ARGUMENT...: runs the command, out here, for a copy of that system, which it finds at $system;
# what it changes in there is gone afterwards. Packages are fetched once.
in_copy() {
    as_root unshare --mount --pid --fork --kill-child bash -euo pipefail -c '
        folder=$1 copy=$1.copy
        export system=$copy/root
        shift
        rm -rf "$copy"
        mkdir -p "$copy"/{upper,work,root} "$folder.fetched/partial"
        mount -t overlay -o "lowerdir=$folder,upperdir=$copy/upper,workdir=$copy/work" overlay "$system"
        mount -t proc proc "$system/proc"
        mount --rbind /dev "$system/dev"
        mount --bind "$folder.fetched" "$system/var/cache/apt/archives"
        cp -L /etc/resolv.conf "$system/etc/resolv.conf"
        status=0
        "$@" || status=$?
        umount --recursive "$system"
        rm -rf "$copy"
        exit $status' bash "$@"
}
