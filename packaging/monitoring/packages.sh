# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154
# install_engine: installs the packages of packages.txt that are missing, and stops the services that come with them.
# $root is the root of the tree; packaging/linux/setup.sh is sourced before.
install_engine() {
    local unit as_root=() new=()
    for unit in prometheus prometheus-node-exporter prometheus-alertmanager; do
        dpkg-query -W -f '${db:Status-Status}' "$unit" 2>/dev/null | grep -qx installed || new+=("$unit")
    done
    install_packages linux monitoring
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    for unit in "${new[@]}"; do
        if [ -d /run/systemd/system ]; then
            "${as_root[@]}" systemctl disable --now "$unit"
        else
            "${as_root[@]}" service "$unit" stop >/dev/null || true # it may not have been started
        fi
    done
}
