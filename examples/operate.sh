#!/bin/sh
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
#
# operate.sh toggle                      starts or stops the simulation
# operate.sh raise SIGNATURE IMPORTANCE  chooses an alarm, such as 0x31020011 ERR, and raises it
# operate.sh end                         clears the alarm
#
# Operates the window on $DISPLAY by keyboard, with xdotool. The program must run with --factorytech. Tab goes from
# startStopSimulationButton over alarmList, alarmImportance, alarmAction and raiseAlarmButton to removeAlarmButton;
# each call leaves the focus where it found it, on the first.
set -eu

window=$(xdotool search --sync --onlyvisible --name '^Ravel Monitor Orbis Simulator')
xdotool windowfocus --sync "$window"

case $1 in
toggle)
    xdotool key space
    ;;
raise) # a picker jumps to the entry that begins with what is typed, with less than 0.4 s between two characters
    xdotool key Tab type --delay 0 "$2"
    xdotool key Tab type --delay 0 "$3"
    xdotool key Tab Tab space Tab Tab
    ;;
end)
    xdotool key shift+Tab space Tab
    ;;
esac
