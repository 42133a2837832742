; Space: the echo (three quarters of a beat, from side to side) and the room behind everything.
; A hush empties both, so that no tail survives it.
instr Space
  iecho = seconds(0.75)
  khush downsamp gaHush
  kopen = 1 - limit(khush, 0, 1)

  ; Echo: what comes back from one side is thrown to the other
  abackl init 0
  abackr init 0
  ainl butterhp gaEchoL, 260
  ainr butterhp gaEchoR, 260
  amid = (ainl + ainr) * 0.5
  aechol delay (amid + abackr * 0.52) * kopen, iecho
  aechor delay abackl * kopen, iecho
  abackl butterlp aechol, 4200
  abackr butterlp aechor, 4200
  gaPlainL = gaPlainL + abackl * 0.9
  gaPlainR = gaPlainR + abackr * 0.9

  ; Room
  asendl butterhp gaRoomL + abackl * 0.12, 220
  asendr butterhp gaRoomR + abackr * 0.12, 220
  aleft, aright reverbsc asendl * kopen, asendr * kopen, 0.78 * kopen + 0.05, 7800
  gaPlainL = gaPlainL + aleft * 0.8
  gaPlainR = gaPlainR + aright * 0.8
endin
