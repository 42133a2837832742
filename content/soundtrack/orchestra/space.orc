; SPDX-License-Identifier: MIT
; Space: what stands round the voices. The echo goes from side to side in three quarters of a beat; claps and snares
; have a plate behind a gate, impacts and metal a dark room, the synths a hall. All of it ducks under the kick, and a
; hush empties it, so that no tail survives.
instr Space
  iecho = seconds(0.75)
  khush downsamp gaHush
  kopen = 1 - limit(khush, 0, 1)

  ; Echo: what comes back from one side is thrown to the other
  abackl init 0
  abackr init 0
  ainl butterhp gaEchoL, 320
  ainr butterhp gaEchoR, 320
  amid = (ainl + ainr) * 0.5
  aechol delay (amid + abackr * 0.5) * kopen, iecho
  aechor delay abackl * kopen, iecho
  abackl butterlp aechol, 4200
  abackr butterlp aechor, 4200

  ; Plate
  aplatel butterhp gaPlateL, 450
  aplater butterhp gaPlateR, 450
  aplatel, aplater reverbsc aplatel * kopen, aplater * kopen, 0.86 * kopen, 9500
  agate limit gaGate, 0, 1

  ; Room
  aroom butterhp gaRoomL, 130
  aroomr butterhp gaRoomR, 130
  arooml, aroomr reverbsc aroom * kopen, aroomr * kopen, 0.72 * kopen, 6000

  ; Hall
  ahalll butterhp gaHallL + abackl * 0.2, 300
  ahallr butterhp gaHallR + abackr * 0.2, 300
  ahalll, ahallr reverbsc ahalll * kopen, ahallr * kopen, 0.84 * kopen, 7200

  aduck limit gaDuck, 0, 1
  aunder = (1 - 0.55 * aduck) * giWetFader
  gaWetL = (abackl * 0.8 + aplatel * agate * 1.6 + arooml * 0.8 + ahalll * 0.8) * aunder
  gaWetR = (abackr * 0.8 + aplater * agate * 1.6 + aroomr * 0.8 + ahallr * 0.8) * aunder
endin
