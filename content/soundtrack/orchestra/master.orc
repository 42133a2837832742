; SPDX-License-Identifier: MIT
; Master: sums the buses, makes the bass mono, shapes, limits, keeps the silences, and writes the file.

; Gain of the drum bus: the drums themselves, and beside them the same drums pressed flat. What lies far under the
; threshold comes up by 4 dB, the loudest hits by 1.
opcode pressed, a, aa
  aleft, aright xin
  aenv follow2 abs(aleft) + abs(aright), 0.002, 0.09
  xout 1 + 0.6 * giPress / (aenv + giPress)
endop

instr Master
#ifdef EVENTS
  event_i "e", 0, 0
#end
#ifdef VOICES
  schedule "Audition", 0, 1
#end
  aduck limit gaDuck, 0, 1
  kveil = 17000 * (0.011 ^ port(gkVeil, 0.01))
  asynth = 1 - 0.62 * aduck
  aunder = 1 - 0.9 * aduck

  ; Kick and bass glue to each other
  abass butterlp aunder * gaBass, min(9000, kveil * 1.4)
  akick = gaKick * giKickFader
  abass = abass * giBassFader
  alow = tanh((akick + abass) * 1.6) / 1.6 + gaBoom

  apress pressed gaDrumL, gaDrumR
  asynthl butterlp gaDuckL * asynth, kveil
  asynthr butterlp gaDuckR * asynth, kveil
  aleft = gaPlainL * giPlainFader + gaDrumL * apress * giDrumFader + asynthl * giSynthFader + gaWetL
  aright = gaPlainR * giPlainFader + gaDrumR * apress * giDrumFader + asynthr * giSynthFader + gaWetR
#ifdef STEMS
  stems (aleft + aright) * 0.5 + alow, akick, abass, asynth, aunder, apress, kveil
#end

  ; Mono at the bottom: the sides lose their bass
  amid = (aleft + aright) * 0.5 + alow
  aside = (aleft - aright) * 0.5 * giWidth
  aside butterhp butterhp(aside, 180), 180

  ; The build's high pass, one behind the other for a steep edge
  amid butterhp butterhp(amid, gkThin), gkThin
  aleft = amid + aside
  aright = amid - aside

  ; Soft clip, limit, and the silences at the very end
  kdrive = giDrive * gkTrim
  aleft tone tanh(aleft * kdrive), 22000
  aright tone tanh(aright * kdrive), 22000
  aleft butterlp aleft, 17500
  aright butterlp aright, 17500
  aleft, aright limiter aleft, aright
  aopen = 1 - limit(gaHush, 0, 1)
  aopen delay aopen, giAhead / sr
  aend linseg 1, p3 - 1.6, 1, 1.5, 0, 0.1, 0 ; the tail's own end
  aopen = aopen * aend
#ifdef VOICES
  asides = gaPlainL + gaDrumL + gaDuckL + gaPlainR + gaDrumR + gaDuckR
  fout "$VOICES", 2, asides * 0.15 + (gaBass + gaKick + gaBoom) * 0.3
#end
#ifdef MIX
  kperiod timeinstk
  if kperiod > giAhead / ksmps then
    fout "$OUT", 16, atone(aleft, 4) * aopen, atone(aright, 4) * aopen
  endif
#end
  clear gaPlainL, gaPlainR, gaDrumL, gaDrumR, gaDuckL, gaDuckR, gaBass, gaKick, gaBoom, gaWetL, gaWetR
  clear gaPlateL, gaPlateR, gaRoomL, gaRoomR, gaHallL, gaHallR, gaEchoL, gaEchoR, gaGate, gaDuck, gaHush
endin
