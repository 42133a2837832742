; SPDX-License-Identifier: MIT
; Every voice alone, for measuring only: soft, hard, hard again, four beats each, without rooms, effects and master.
; `render --voices` writes it as 16-bit mono; voices.txt names them in their order.

gSAudition[] fillarray "Kick", "Clap", "Snare", "Tom", "Hat", "OpenHat", "Ride", "Tick", "Anvil", "Slam", \
                       "Impact", "Knock", "Accent", "Zap", "Bass", "Reese", "Sub", "Growl", "Acid", "Lead", \
                       "Wail", "Stab", "Pad", "Choir", "Shimmer", "Drone", "Arp", "Bell"
giNotes[]    fillarray 31, 0, 0, 43, 0, 0, 0, 84, 67, 0, \
                       0, 0, 74, 67, 31, 31, 31, 31, 43, 67, \
                       67, 43, 55, 67, 67, 43, 67, 67

instr Audition
  index = 0
  ibeat = 0
  while index < lenarray(gSAudition) do
    Sname = gSAudition[index]
    fprints "$NAMES", "%s\n", Sname
    schedule Sname, seconds(ibeat), seconds(1), 0.5, giNotes[index], 0.5, 0, 0
    schedule Sname, seconds(ibeat + 4), seconds(1), 1, giNotes[index], 0.5, 0, 0
    schedule Sname, seconds(ibeat + 8), seconds(1), 1, giNotes[index], 0.5, 0, 0
    ibeat += 12
    index += 1
  od
  event_i "e", 0, seconds(ibeat)
endin
