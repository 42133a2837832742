; Master: sums the buses, makes the bass mono, shapes, limits, keeps the silences, and writes the file.

; The faders
giLowFader   = 0.62 ; kick and bass
giPlainFader = 1.55 ; drums, impacts, room and echo
giSynthFader = 2.15 ; what ducks
giWidth      = 1.5 ; the sides against the middle
giDrive      = 0.78 ; into the soft clip: how loud the piece is
giCeiling    = 0.685 ; the limiter's ceiling, of full scale; leaves room for what Vorbis adds
giAhead      = 96   ; samples that the limiter looks ahead: whole control periods

; Peak of one control period, of the samples and of the curve halfway between them (a windowed sinc of six taps;
; its delay of three samples is far inside the look-ahead).
opcode truepeak, k, a
  a0 xin
  a1 delay1 a0
  a2 delay1 a1
  a3 delay1 a2
  a4 delay1 a3
  a5 delay1 a4
  ahalf = 0.6103 * (a2 + a3) - 0.1387 * (a1 + a4) + 0.0284 * (a0 + a5)
  ksample max_k a0, 1, 1
  khalf max_k ahalf, 1, 1
  xout max(ksample, khalf)
endop

; Limiter: the gain that each control period needs, its smallest over the look-ahead and their average,
; so the gain has come down before the peak arrives. Delays the sound by giAhead samples.
opcode limiter, aa, aa
  aleft, aright xin
  kpeak = max(truepeak(aleft), truepeak(aright))
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
  kveil = 17000 * (0.011 ^ port(gkVeil, 0.01))
  asynth = 1 - 0.62 * aduck
  abass = (1 - 0.92 * aduck) * gaBass
  abass butterlp abass, min(9000, kveil * 1.4)

  ; Kick and bass glue to each other
  alow = tanh((gaKick * 0.95 + abass) * 1.05) * giLowFader
  asynthl butterlp gaDuckL * asynth, kveil
  asynthr butterlp gaDuckR * asynth, kveil
  aleft = gaPlainL * giPlainFader + asynthl * giSynthFader
  aright = gaPlainR * giPlainFader + asynthr * giSynthFader

  ; Mono below 140 Hz: the sides lose their bass
  amid = (aleft + aright) * 0.5
  aside = (aleft - aright) * 0.5 * giWidth
  aside butterhp aside, 140
  amid = amid + alow
  aleft = amid + aside
  aright = amid - aside

  ; Soft clip, limit, and the silences at the very end
  kdrive = giDrive * gkTrim
  aleft butterhp tanh(aleft * kdrive), 24
  aright butterhp tanh(aright * kdrive), 24
  aleft butterlp aleft, 18500
  aright butterlp aright, 18500
  aleft, aright limiter aleft, aright
  aopen = 1 - limit(gaHush, 0, 1)
  aopen delay aopen, giAhead / sr
  aend linseg 1, p3 - 1.6, 1, 1.5, 0, 0.1, 0 ; the tail's own end
  aopen = aopen * aend
  kperiod timeinstk
  if kperiod > giAhead / ksmps then
    fout "$OUT", 16, atone(aleft, 4) * aopen, atone(aright, 4) * aopen
  endif
  clear gaPlainL, gaPlainR, gaDuckL, gaDuckR, gaBass, gaKick, gaRoomL, gaRoomR, gaEchoL, gaEchoR, gaDuck, gaHush
endin
