; The buses between the voices and the master. Every voice ends in one of the outputs below.

gaPlainL init 0 ; drums, impacts, effects: never ducked
gaPlainR init 0
gaDuckL  init 0 ; synths: duck under the kick
gaDuckR  init 0
gaBass   init 0 ; bass, mono: ducks deepest
gaKick   init 0 ; kick, mono
gaRoomL  init 0 ; reverb send
gaRoomR  init 0
gaEchoL  init 0 ; delay send
gaEchoR  init 0
gaDuck   init 0 ; how far the kick pushes the others down, 0 to 1
gaHush   init 0 ; hard silence: 1 is silent

; plain left, right, reverb, delay
opcode plain, 0, aaii
  aleft, aright, iroom, iecho xin
  gaPlainL = gaPlainL + aleft
  gaPlainR = gaPlainR + aright
  gaRoomL = gaRoomL + aleft * iroom
  gaRoomR = gaRoomR + aright * iroom
  gaEchoL = gaEchoL + aleft * iecho
  gaEchoR = gaEchoR + aright * iecho
endop

; ducked left, right, reverb, delay
opcode ducked, 0, aaii
  aleft, aright, iroom, iecho xin
  gaDuckL = gaDuckL + aleft
  gaDuckR = gaDuckR + aright
  gaRoomL = gaRoomL + aleft * iroom
  gaRoomR = gaRoomR + aright * iroom
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

; Constant-power panning, -1 left to 1 right.
opcode place, aa, ai
  ain, iplace xin
  iangle = (iplace + 1) * $M_PI / 4
  xout ain * cos(iangle), ain * sin(iangle)
endop

; A ramp shared by voices: one value that a section moves, such as the filter of the tunnel's line.
gkSweep init 0

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
