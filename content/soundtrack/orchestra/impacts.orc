; Hits that the picture makes, and what leads up to them.

; Impact: a boom that falls to the root p5 (0: g1), a wall of noise, a big room. tone: how bright the wall is.
instr Impact
  p3 = max(p3, 1.6)
  iroot = cpsmidinn(p5 == 0 ? 31 : p5)
  afall expseg 150, 0.09, iroot * 1.25, 0.35, iroot, 10, iroot
  aboom oscili 1, afall, -1, 0.05
  aboomenv expseg 1, 0.25, 0.7, p3 - 0.27, 0.004, 0.02, 0.0005
  aboom = tanh(aboom * aboomenv * 2.2) * 0.62
  aleft hiss
  aright hiss
  kcut expseg 3000 + 11000 * p6, 0.5, 900, 2, 260, 10, 200
  aleft butterlp aleft, kcut
  aright butterlp aright, kcut
  awall expseg 1, 0.05, 0.5, 0.5, 0.09, p3 - 0.55, 0.001
  afade linseg 1, p3 - 0.02, 1, 0.02, 0
  aleft = aleft * awall * 0.5 * p4 * afade
  aright = aright * awall * 0.5 * p4 * afade
  plain aleft, aright, 0.3, 0
  gaKick = gaKick + aboom * p4 * 0.8
endin

; One shard of glass: a few partials of a struck pane. p5 note, tone: place.
instr Shard
  icps = cpsmidinn(p5)
  a1 oscili 1, icps, -1, 0.25
  a2 oscili 0.6, icps * 2.32, -1, 0.25
  a3 oscili 0.35, icps * 4.25
  aenv expseg 1, p3, 0.001
  aleft, aright place (a1 + a2 + a3) * aenv * 0.12 * p4, p6 * 2 - 1
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
  aleft butterhp aleft, 3000
  aright butterhp aright, 3000
  aenv expseg 1, 0.02, 0.4, 0.3, 0.01, 1, 0.004
  plain aleft * aenv * 0.55 * p4, aright * aenv * 0.55 * p4, 0.3, 0
endin

; Zap: the strobe after each word, torn metal at p5. tone: how long.
instr Zap
  p3 = 0.1 + 0.3 * p6
  icps = cpsmidinn(p5)
  aindex expseg 9, p3 * 0.7, 0.6, 10, 0.5
  amodl oscili icps * 1.414 * aindex, icps * 1.414
  amodr oscili icps * 1.427 * aindex, icps * 1.427
  aleft oscili 1, icps + amodl, -1, 0.25
  aright oscili 1, icps * 1.003 + amodr, -1, 0.25
  aenv linseg 1, p3 * 0.25, 0.6, p3 * 0.7, 0.08, p3 * 0.05, 0
  aleft butterhp tanh(aleft * 1.6) * aenv, 160
  aright butterhp tanh(aright * 1.6) * aenv, 160
  plain aleft * 0.4 * p4, aright * 0.4 * p4, 0.14, 0
endin

; Anvil: the tunnel's hit on every beat. p5 note, tone: how hard.
instr Anvil
  p3 = 0.36
  icps = cpsmidinn(p5)
  aindex expseg 2 + 5 * p6, 0.12, 0.4, 1, 0.3
  amod oscili icps * 2.76 * aindex, icps * 2.76
  a1 oscili 1, icps + amod, -1, 0.25
  a2 oscili 0.7, icps * 1.506 + amod * 0.7, -1, 0.25
  aenv expseg 1, 0.08, 0.22, 0.26, 0.006, 1, 0.005
  afade linseg 1, 0.33, 1, 0.03, 0
  aout butterhp tanh((a1 + a2) * 1.4) * aenv * afade, 320
  aside delay aout, 0.011
  plain (aout * 0.85 + aside * 0.35) * 0.3 * p4, (aout * 0.85 - aside * 0.35) * 0.3 * p4, 0.2, 0.05
endin

; Riser: noise through a rising filter with a rising tone inside. p5: where the tone arrives (0: g5). tone: share of it.
instr Riser
  inote = (p5 == 0) ? 79 : p5
  aleft hiss
  aright hiss
  krise expon 1, p3, 30
  kcut = 300 * krise
  aleft butterbp aleft, kcut, kcut * 0.7
  aright butterbp aright, kcut * 1.06, kcut * 0.7
  ktone expon cpsmidinn(inote - 24), p3, cpsmidinn(inote)
  a1 vco2 0.5, ktone
  a2 vco2 0.5, ktone * 1.011
  avoice butterlp a1 + a2, kcut * 1.5
  aenv expseg 0.03, p3 * 0.8, 0.6, p3 * 0.2, 1
  afade linseg 0, 0.02, 1, p3 - 0.05, 1, 0.005, 0, 0.025, 0
  aleft = (aleft * 0.75 + avoice * 0.5 * p6) * aenv * afade * 0.5 * p4
  aright = (aright * 0.75 + avoice * 0.5 * p6) * aenv * afade * 0.5 * p4
  ducked aleft, aright, 0.15, 0
endin

; Faller: the riser's opposite, after a hit.
instr Faller
  aleft hiss
  aright hiss
  kcut expon 8000, p3, 250
  aleft butterbp aleft, kcut, kcut * 0.8
  aright butterbp aright, kcut * 0.94, kcut * 0.8
  aenv expseg 1, p3, 0.01
  ducked aleft * aenv * 0.42 * p4, aright * aenv * 0.42 * p4, 0.2, 0
endin

; Suck: a hit played backwards, ends where the next one starts.
instr Suck
  aleft hiss
  aright hiss
  kcut expon 400, p3, 9000
  aleft butterlp aleft, kcut
  aright butterlp aright, kcut
  igap = 0.03 ; a breath before what follows
  aenv expseg 0.004, p3 * 0.7, 0.12, p3 * 0.3 - igap - 0.004, 1, 0.004, 0.001, igap, 0.001
  plain aleft * aenv * 0.5 * p4, aright * aenv * 0.5 * p4, 0.05, 0
endin

; Flicker: a low chord chopped 30 times a second, the sound of a strobe at full speed. p5 root, tone: brightness.
instr Flicker
  icps = cpsmidinn(p5)
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 1.4983
  a3 vco2 0.4, icps * 2.009
  a4 vco2 0.4, icps * 1.189
  achop lfo 1, 30, 3
  achop tonex achop, 900, 1
  kcut line 500 + 900 * p6, p3, 1600 + 5200 * p6
  al moogladder2 (a1 + a2 + a3) * achop, kcut, 0.25
  ar moogladder2 (a1 + a4 + a3) * (1 - achop), kcut * 1.1, 0.25
  aenv linseg 0, 0.01, 1, p3 - 0.03, 0.8, 0.02, 0
  amid = (al + ar) * 0.5
  plain (al * 0.6 + amid * 0.4) * aenv * 0.5 * p4, (ar * 0.6 + amid * 0.4) * aenv * 0.5 * p4, 0.12, 0
endin
