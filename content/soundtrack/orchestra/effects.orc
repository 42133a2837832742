; SPDX-License-Identifier: MIT
; What leads up to a hit, what falls from it, and the picture's small noises.

; One shard of glass: a few partials of a struck pane. p5 note, tone: place.
instr Shard
  icps = cpsmidinn(p5)
  a1 oscili 1, icps, -1, 0.25
  a2 oscili 0.6, icps * 2.32, -1, 0.25
  a3 oscili 0.35 * p4, icps * 4.25
  aenv expseg 1, p3, 0.001
  aleft, aright place (a1 + a2 + a3) * aenv * 0.12 * p4, (p6 * 2 - 1) * 0.7
  plain aleft, aright, 0.35, 0.12
endin

; Glass: the pane bursts on the first sample, its shards ring and rain down for a second.
instr Glass
  icount = 0
  while icount < 46 do
    ispread random 0, 1
    ipitch random 86, 118
    iring random 0.06, 0.7
    iplace random 0, 1
    ilevel random 0.3, 1
    iwhen = (icount < 14) ? 0 : 0.9 * ispread * ispread
    schedule "Shard", iwhen, iring, ilevel * p4 * (icount < 14 ? 1 : 0.75 - 0.5 * ispread), ipitch - 8 * ispread, iplace
    icount += 1
  od
  p3 = 0.5
  aleft hiss
  aright hiss
  acentre hiss
  aleft butterlp butterhp(aleft * 0.5 + acentre * 0.7, 3000), 11000
  aright butterlp butterhp(aright * 0.5 + acentre * 0.7, 3000), 11000
  aenv expseg 1, 0.02, 0.4, 0.3, 0.01, 1, 0.004
  plain aleft * aenv * 0.6 * p4, aright * aenv * 0.6 * p4, 0.3, 0
endin

; Zap: the strobe after each word, torn metal at p5: one plate in the middle, one that beats against it at the sides.
; tone: how long.
instr Zap
  p3 = 0.1 + 0.3 * p6
  icps = cpsmidinn(p5)
  aindex expseg 4 + 5 * p4, p3 * 0.7, 0.6, 10, 0.5
  amod oscili icps * 1.414 * aindex, icps * 1.414
  abeat oscili icps * 1.427 * aindex, icps * 1.427
  amid oscili 1, icps + amod, -1, 0.25
  aside oscili 0.4, icps * 1.003 + abeat, -1, 0.25
  aenv linseg 1, p3 * 0.25, 0.6, p3 * 0.7, 0.08, p3 * 0.05, 0
  aleft butterhp tanh((amid + aside) * 1.5) * aenv, 160
  aright butterhp tanh((amid - aside) * 1.5) * aenv, 160
  plain aleft * 0.4 * p4, aright * 0.4 * p4, 0.14, 0.05
endin

; Anvil: the tunnel's iron. p5 note, tone: how hard.
instr Anvil
  p3 = 0.36
  icps = cpsmidinn(p5) * vary(0.003)
  aindex expseg 1.2 + 5 * p6 * p4, 0.12, 0.4, 1, 0.3
  amod oscili icps * 2.76 * aindex, icps * 2.76
  a1 oscili 1, icps + amod, -1, 0.25
  a2 oscili 0.7, icps * 1.506 + amod * 0.7, -1, 0.25
  aenv expseg 1, 0.08, 0.22, 0.26, 0.006, 1, 0.005
  afade linseg 1, 0.33, 1, 0.03, 0, 1, 0
  aout butterhp tanh((a1 + a2) * 1.4) * aenv * afade, 320
  aside delay aout, 0.011
  drum (aout * 0.9 + aside * 0.25) * 0.3 * p4, (aout * 0.9 - aside * 0.25) * 0.3 * p4, 0, 0.4
endin

; Riser: noise through a climbing filter, two saws that climb with it, and a tremble that quickens. p5: where the saws
; arrive (0: g5). tone: their share.
instr Riser
  inote = (p5 == 0) ? 79 : p5
  aleft hiss
  aright hiss
  acentre hiss
  krise expon 1, p3, 30
  kcut = 300 * krise
  aleft butterbp aleft * 0.5 + acentre * 0.8, kcut, kcut * 0.7
  aright butterbp aright * 0.5 + acentre * 0.8, kcut * 1.06, kcut * 0.7
  ktone expon cpsmidinn(inote - 24), p3, cpsmidinn(inote)
  a1 vco2 0.5, ktone
  a2 vco2 0.5, ktone * 1.011, 0, 0.5, 0.4
  a3 vco2 0.4, ktone * 1.4983, 0, 0.5, 0.7
  avoice butterlp a1 + a2 + a3, min(kcut * 1.5, 12000)
  avoice butterhp avoice, 200
  kpace expon giTempo / 60, p3, giTempo / 60 * 8
  atremble oscili 0.35, kpace, -1, 0.25
  atremble = 0.65 + atremble
  aenv expseg 0.03, p3 * 0.8, 0.6, p3 * 0.2, 1
  afade linseg 0, 0.02, 1, p3 - 0.05, 1, 0.005, 0, 0.025, 0
  aenv = aenv * afade * atremble * 0.55 * p4
  ducked (aleft * 0.75 + avoice * 0.45 * p6) * aenv, (aright * 0.75 + avoice * 0.45 * p6) * aenv, 0.25, 0
endin

; Faller: the riser's opposite, after a hit: noise and a tone come down together.
instr Faller
  aleft hiss
  aright hiss
  acentre hiss
  kcut expon 8000, p3, 250
  aleft butterbp aleft * 0.5 + acentre * 0.8, kcut, kcut * 0.8
  aright butterbp aright * 0.5 + acentre * 0.8, kcut * 0.94, kcut * 0.8
  ktone expon 1400, p3, 90
  awobble oscili 0.04, giTempo / 60 * 3
  afall vco2 0.4, ktone * (1 + k(awobble)), 10
  afall butterlp afall, kcut * 0.6
  aenv expseg 1, p3, 0.01
  ducked (aleft + afall * 0.4) * aenv * 0.42 * p4, (aright + afall * 0.4) * aenv * 0.42 * p4, 0.3, 0
endin

; Suck: a hit played backwards, ends where the next one starts: noise, a cymbal and a tone that swell.
instr Suck
  aleft hiss
  aright hiss
  acentre hiss
  ametal cymbal 470
  kcut expon 400, p3, 9000
  aleft butterlp aleft * 0.5 + acentre * 0.8 + ametal * 0.7, kcut
  aright butterlp aright * 0.5 + acentre * 0.8 + ametal * 0.7, kcut
  kdown expon 220, p3, 110
  afall vco2 0.3, kdown
  afall butterlp afall, kcut * 0.5
  igap = 0.03 ; a breath before what follows
  aenv expseg 0.004, p3 * 0.7, 0.12, p3 * 0.3 - igap - 0.004, 1, 0.004, 0.001, igap, 0.001
  plain (aleft + afall) * aenv * 0.45 * p4, (aright + afall) * aenv * 0.45 * p4, 0.05, 0
endin
