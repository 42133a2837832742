; Master: sums the buses, makes the bass mono, shapes, limits, keeps the silences, and writes the file.

; The faders
giLowFader   = 0.62 ; kick and bass
giPlainFader = 1.55 ; drums, impacts, room and echo
giSynthFader = 1.75 ; what ducks
giWidth      = 1.35 ; the sides against the middle
giDrive      = 0.78 ; into the soft clip: how loud the piece is
giCeiling    = 0.63 ; the limiter's ceiling, of full scale; leaves room for what Vorbis adds
giAhead      = 96   ; samples that the limiter looks ahead: whole control periods

; Peak of one control period of both sides.
opcode blockpeak, k, aa
  aleft, aright xin
  kleft max_k aleft, 1, 1
  kright max_k aright, 1, 1
  xout max(kleft, kright)
endop

; Limiter: the gain that each control period needs, its smallest over the look-ahead and their average,
; so the gain has come down before the peak arrives. Delays the sound by giAhead samples.
opcode limiter, aa, aa
  aleft, aright xin
  kpeak blockpeak aleft, aright
  kneed = min(1, giCeiling / max(kpeak, 0.0001))
  k1 init 1
  k2 init 1
  k3 init 1
  k4 init 1
  klow1 init 1
  klow2 init 1
  kslow init 1
  klow = min(min(kneed, k1), min(k2, min(k3, k4)))
  k4 = k3
  k3 = k2
  k2 = k1
  k1 = kneed
  ; Down at once (the average below rounds it), up within a tenth of a second
  kslow = (klow < kslow) ? klow : kslow + (klow - kslow) * (1 - exp(-ksmps / (0.05 * sr)))
  kgain = (kslow + klow1 + klow2) / 3
  klow2 = klow1
  klow1 = kslow
  again interp kgain
  xout delay(aleft, giAhead / sr) * again, delay(aright, giAhead / sr) * again
endop

instr Master
  aduck limit gaDuck, 0, 1
  asynth = 1 - 0.62 * aduck
  abass = (1 - 0.92 * aduck) * gaBass
  abass tonex abass, 9000, 1

  ; Kick and bass glue to each other
  alow = tanh((gaKick * 0.95 + abass) * 1.05) * giLowFader
  aleft = gaPlainL * giPlainFader + gaDuckL * asynth * giSynthFader
  aright = gaPlainR * giPlainFader + gaDuckR * asynth * giSynthFader

  ; Mono below 140 Hz: the sides lose their bass
  amid = (aleft + aright) * 0.5
  aside = (aleft - aright) * 0.5 * giWidth
  aside butterhp aside, 140
  amid = amid + alow
  aleft = amid + aside
  aright = amid - aside

  ; Soft clip, limit, and the silences at the very end
  aleft butterhp tanh(aleft * giDrive), 24
  aright butterhp tanh(aright * giDrive), 24
  aleft, aright limiter aleft, aright
  aopen = 1 - limit(gaHush, 0, 1)
  aopen delay aopen, giAhead / sr
  kperiod timeinstk
  if kperiod > giAhead / ksmps then
    fout "$OUT", 16, aleft * aopen, aright * aopen
  endif
  clear gaPlainL, gaPlainR, gaDuckL, gaDuckR, gaBass, gaKick, gaRoomL, gaRoomR, gaEchoL, gaEchoR, gaDuck, gaHush
endin
