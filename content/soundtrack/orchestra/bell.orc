; Bell: struck metal with a hum note below. tone: hardness of the clapper.
instr Bell
  ilong = 2.6
  p3 = max(p3, ilong)
  icps = cpsmidinn(p5)
  aindex expseg 1.2 + 3 * p6, 0.25, 0.5, 3, 0.1
  amod oscili icps * 3.5 * aindex, icps * 3.5
  a1 oscili 1, icps + amod, -1, 0.25
  a2 oscili 0.5, icps * 2.005, -1, 0.25
  a3 oscili 0.28, icps * 5.43, -1, 0.25
  ahum oscili 0.4, icps * 0.5
  aenv1 expseg 1, p3, 0.002
  aenv3 expseg 1, p3 * 0.25, 0.003, 10, 0.002
  aside oscili 0.5, icps * 2.013, -1, 0.3
  afade linseg 0, 0.0008, 1, p3 - 0.0208, 1, 0.02, 0
  amid = (a1 * 0.7 + ahum) * aenv1 + a3 * aenv3
  plain (amid + a2 * aenv3) * afade * 0.24 * p4, (amid + aside * aenv3) * afade * 0.24 * p4, 0.4, 0.3
endin
