; SPDX-License-Identifier: MIT
; The buses between the voices and the master. Every voice ends in one of the outputs below.

; The faders
giKickFader  = 0.54 ; kick
giBassFader  = 0.66 ; basses
giDrumFader  = 1.2  ; everything that answers the kick
giPlainFader = 1.55 ; impacts and effects
giSynthFader = 2.15 ; what ducks
giWetFader   = 3.6  ; rooms and echo
giWidth      = 1.1  ; the sides against the middle
giPress      = 0.6  ; threshold of the drums' parallel compression
giDrive      = 0.73 ; into the soft clip: how loud the piece is
giCeiling    = 0.685 ; the limiter's ceiling, of full scale; leaves room for what Vorbis adds
giAhead      = 96   ; samples that the limiter looks ahead: whole control periods

gaPlainL init 0 ; impacts and effects: never ducked
gaPlainR init 0
gaDrumL  init 0 ; claps, snares, hats, metal: compressed in parallel
gaDrumR  init 0
gaDuckL  init 0 ; synths: duck under the kick
gaDuckR  init 0
gaBass   init 0 ; bass, mono: ducks deepest
gaKick   init 0 ; kick, mono
gaBoom   init 0 ; the low end of impacts, mono, past the glue
gaWetL   init 0 ; what comes back from rooms and echo
gaWetR   init 0
gaPlateL init 0 ; sends: the gated plate of claps and snares,
gaPlateR init 0
gaRoomL  init 0 ; the dark room of impacts and metal,
gaRoomR  init 0
gaHallL  init 0 ; the hall of the synths,
gaHallR  init 0
gaEchoL  init 0 ; and the echo
gaEchoR  init 0
gaGate   init 0 ; how far the plate's gate is open, 0 to 1
gaDuck   init 0 ; how far the kick pushes the others down, 0 to 1
gaHush   init 0 ; hard silence: 1 is silent

; A voice's own sum goes to the stems too: one mono channel for each instrument, by its number (stems.orc).
opcode stem, 0, a
  avoice xin
#ifdef STEMS
  zawm avoice, int(p1)
#end
endop

; low voice: what goes to the bass
opcode low, 0, a
  avoice xin
  gaBass = gaBass + avoice
  stem avoice
endop

; plain left, right, room, echo
opcode plain, 0, aaii
  aleft, aright, iroom, iecho xin
  stem (aleft + aright) * 0.5
  gaPlainL = gaPlainL + aleft
  gaPlainR = gaPlainR + aright
  gaRoomL = gaRoomL + aleft * iroom
  gaRoomR = gaRoomR + aright * iroom
  gaEchoL = gaEchoL + aleft * iecho
  gaEchoR = gaEchoR + aright * iecho
endop

; drum left, right, plate, room
opcode drum, 0, aaii
  aleft, aright, iplate, iroom xin
  stem (aleft + aright) * 0.5
  gaDrumL = gaDrumL + aleft
  gaDrumR = gaDrumR + aright
  gaPlateL = gaPlateL + aleft * iplate
  gaPlateR = gaPlateR + aright * iplate
  gaRoomL = gaRoomL + aleft * iroom
  gaRoomR = gaRoomR + aright * iroom
endop

; ducked left, right, hall, echo
opcode ducked, 0, aaii
  aleft, aright, ihall, iecho xin
  stem (aleft + aright) * 0.5
  gaDuckL = gaDuckL + aleft
  gaDuckR = gaDuckR + aright
  gaHallL = gaHallL + aleft * ihall
  gaHallR = gaHallR + aright * ihall
  gaEchoL = gaEchoL + aleft * iecho
  gaEchoR = gaEchoR + aright * iecho
endop

; White noise, -1 to 1. Each call takes the next seed, so every render draws the same noise.
giSeed = 0
opcode hiss, a, 0
  giSeed = (giSeed + 0.61803398875) % 1
  anoise rand 1, giSeed, 1
  xout anoise
endop

; A number of its own for each hit, about 1 by at most ispread either way: no two hits are quite alike.
opcode vary, i, i
  ispread xin
  ichance random 1 - ispread, 1 + ispread
  xout ichance
endop

; Constant-power panning, -1 left to 1 right.
opcode place, aa, ai
  ain, iplace xin
  iangle = (iplace + 1) * $M_PI / 4
  xout ain * cos(iangle), ain * sin(iangle)
endop

; How loud a section is; `section` sets it on its first beat.
gkTrim init 1
instr Trim
  gkTrim init p4
endin

; Moves gkSweep from p4 to p5, over p3 seconds.
instr Sweep
  gkSweep line p4, p3, p5
endin

; sweep from beat, to beat, first value, last value (0 to 1)
opcode sweep, 0, iiii
  ifrom, ito, ifirst, ilast xin
  schedule "Sweep", seconds(giOrigin + ifrom), seconds(ito - ifrom), ifirst, ilast
endop

; How far a low pass is drawn over synths and bass, 0 open to 1 closed. It stays where the last veil left it.
gkVeil init 0
instr Veil
  gkVeil line p4, p3, p5
endin

; veil from beat, to beat, first value, last value
opcode veil, 0, iiii
  ifrom, ito, ifirst, ilast xin
  schedule "Veil", seconds(giOrigin + ifrom), seconds(ito - ifrom), ifirst, ilast
endop

; A high pass over everything, hertz: 24 leaves all through.
gkThin init 24
instr Thin
  kclimb expon 24, p3, p4
  gkThin = kclimb
  if release() == 1 then
    gkThin = 24
  endif
endin

; thin from beat, to beat [, hertz]: takes the floor away over a build; it snaps back at the end, best within a silence.
opcode thin, 0, iio
  ifrom, ito, ihertz xin
  schedule "Thin", seconds(giOrigin + ifrom), seconds(ito - ifrom), ihertz == 0 ? 250 : ihertz
endop

; The kick's push on the other buses: down in 3 ms, back within 0.3 s.
instr Duck
  p3 = 0.34
  apush linseg 0, 0.003, p4, 0.05, p4 * 0.95, 0.12, p4 * 0.4, 0.16, 0
  gaDuck = gaDuck + apush
endin

; Hard silence over p3 seconds: shut within 2 ms, open again within half a millisecond before the end.
instr Hush
  ahush linseg 0, 0.002, 1, p3 - 0.0025, 1, 0.0005, 0
  gaHush = gaHush + ahush
endin

; The plate's gate: open for a seventh of a second, then shut.
instr Gate
  p3 = 0.26
  agate linseg 0, 0.001, 1, 0.14, 1, 0.11, 0
  gaGate = gaGate + agate
endin
