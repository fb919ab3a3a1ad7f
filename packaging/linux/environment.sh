# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
#
# Sourced by the shell scripts that start the simulator on Linux: what it needs to find in its environment.

# The program's own default is a Windows path. Per user, since whoever starts it has to be able to write there.
HOME="${HOME:-$(getent passwd "$(id -u)" | cut -d : -f 6)}"
export PROGRAMDATA="${PROGRAMDATA:-${XDG_DATA_HOME:-$HOME/.local/share}}"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no display: the window is drawn off screen, where nobody can press \"Simulation starten\"."
    echo "orbis-running-simulator does that; everything else works as usual."
    export QT_QPA_PLATFORM=offscreen
fi
