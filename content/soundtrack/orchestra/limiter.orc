; SPDX-License-Identifier: MIT
; The limiter at the end of the master.

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
