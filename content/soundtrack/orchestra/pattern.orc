; SPDX-License-Identifier: MIT
; The pattern language: everything that the score says, it says with `hits`, `play`, `at` and `hush`.
;
; Time is counted in beats from the first beat of the section that is being written (`section` sets it);
; 132 beats a minute, a quarter beat is a sixteenth. Seconds appear only in `at`.
;
; Every voice receives the same p-fields:
;   p3 seconds   p4 level (1 is the voice's normal strength)   p5 MIDI note (0 where it has no pitch)
;   p6 tone, 0 to 1: what it bends is said at the head of each instrument

giTempo  = 132
giSwing  = 0.10 ; how late every second sixteenth is, as a part of a sixteenth
giOrigin = 0    ; the section's first beat in the show

opcode seconds, i, i
  ibeats xin
  xout ibeats * 60 / giTempo
endop

; section first beat of the show [, loudness in decibels against the others]
opcode section, 0, io
  ibeat, idecibels xin
  giOrigin = ibeat
  schedule "Trim", seconds(ibeat), 0, ampdb(idecibels)
endop

; at beat, voice, beats it lasts [, level, note, tone [, the note it slides to, after how many beats]]
opcode at, 0, iSipoooo
  ibeat, Svoice, ibeats, ilevel, inote, itone, islide, iafter xin
#ifdef EVENTS
  fprints "$EVENTS", "%.4f %s %.4f %.4f %.2f %.3f %.2f %.3f\n", \
    giOrigin + ibeat, Svoice, ibeats, ilevel, inote, itone, islide, iafter
#end
#ifdef SCORE
  schedule Svoice, seconds(giOrigin + ibeat), seconds(ibeats), ilevel, inote, itone, islide, seconds(iafter)
#end
endop

; hush from, to: hard silence. Everything stops dead, tails and all, and comes back on the beat `to`.
opcode hush, 0, ii
  ifrom, ito xin
  iclose = 0.002 ; seconds: the door falls shut just before the beat
  schedule "Hush", seconds(giOrigin + ifrom) - iclose, seconds(ito - ifrom) + iclose
endop

; chop from, to, until: a stutter of everything. Hard silence in the second half of every sixteenth, and after the last
; one up to the beat `until`.
opcode chop, 0, iii
  ifrom, ito, iuntil xin
  ibeat = ifrom
  while ibeat < ito - 0.001 do
    hush ibeat + 0.14, ibeat + 0.25 < ito - 0.001 ? ibeat + 0.25 : iuntil
    ibeat += 0.25
  od
endop

; How late a step is played: the swing of the odd sixteenths, in beats.
opcode swing, i, ii
  istep, ilength xin
  xout (ilength == 0.25 && istep % 2 == 1) ? giSwing * ilength : 0
endop

; How strong one character of a drum pattern is; 0 is a rest, -1 no step at all (blanks and bar lines).
opcode strength, i, i
  ichar xin
  ivalue = -1
  if ichar == 46 then                      ; .
    ivalue = 0
  elseif ichar == 111 then                 ; o  ghost
    ivalue = 0.45
  elseif ichar == 120 || ichar == 114 then ; x  plain,  r  two thirty-seconds
    ivalue = 0.8
  elseif ichar == 88 then                  ; X  accent
    ivalue = 1
  endif
  xout ivalue
endop

; hits from, to, voice, pattern [, level, note, tone]
; A character is a sixteenth; the pattern repeats until the beat `to`. Example: "X.o. x.o. X.o. x.or"
opcode hits, 0, iiSSpoo
  ifrom, ito, Svoice, Spattern, ilevel, inote, itone xin
  ilength strlen Spattern
  ichar = 0
  istep = 0
  while ifrom + istep * 0.25 < ito - 0.001 do
    icode strchar Spattern, ichar
    ivalue strength icode
    ibeat = ifrom + istep * 0.25 + swing(istep, 0.25)
    if ivalue > 0 then
      at ibeat, Svoice, 0.25, ivalue * ilevel, inote, itone
      if icode == 114 then
        at ibeat + 0.125, Svoice, 0.25, 0.75 * ivalue * ilevel, inote, itone
      endif
    endif
    istep += (ivalue < 0) ? 0 : 1
    ichar = (ichar + 1) % ilength
  od
endop

; The MIDI note of a name such as g4, bb3 or f#2 (c4 is 60), read from position ipos; and where the name ends.
opcode notename, ii, Si
  Stext, ipos xin
  iclasses[] fillarray 9, 11, 0, 2, 4, 5, 7
  ilength strlen Stext
  iletter strchar Stext, ipos
  inote = iclasses[iletter - 97]
  ipos += 1
  inext strchar Stext, ipos
  if inext == 35 then     ; #
    inote += 1
    ipos += 1
  elseif inext == 98 then ; b
    inote -= 1
    ipos += 1
  endif
  ioctave strchar Stext, ipos
  xout inote + 12 * (ioctave - 47), ipos + 1
endop

; Where each word of a line of notes starts: an array of positions, and how many words there are.
opcode words, i[]i, S
  Stext xin
  ilength strlen Stext
  iword[] init 1024
  icount = 0
  ichar = 0
  iblank = 1
  while ichar < ilength do
    icode strchar Stext, ichar
    inow = (icode <= 32 || icode == 124) ? 1 : 0
    if inow == 0 && iblank == 1 then
      iword[icount] = ichar
      icount += 1
    endif
    iblank = inow
    ichar += 1
  od
  xout iword, icount
endop

; How many steps the note in word ithis lasts: itself and the words `-` behind it.
opcode held, i, Si[]ii
  Stext, iword[], icount, ithis xin
  isteps = 1
  icode strchar Stext, iword[(ithis + 1) % icount]
  while icode == 45 && isteps < icount do
    isteps += 1
    icode strchar Stext, iword[(ithis + isteps) % icount]
  od
  xout isteps
endop

; The marks of the word at position ipos: velocity (1 with `!`), share of its last step (a half with `~`), whether it
; slides (`_`).
opcode marks, iii, Si
  Stext, ipos xin
  ilength strlen Stext
  ivelocity = 0.8
  ishare = 1
  islides = 0
  icode = 43
  while icode > 32 && icode != 124 && ipos < ilength do
    icode strchar Stext, ipos
    ivelocity = (icode == 33) ? 1 : ivelocity
    ishare = (icode == 126) ? 0.5 : ishare
    islides = (icode == 95) ? 1 : islides
    ipos += 1
  od
  xout ivelocity, ishare, islides
endop

; play from, to, voice, notes [, level, transpose, tone, step]
; The notes are words with blanks between them, one a step (a step is a quarter beat unless the last argument
; says otherwise): a note name (g4), a chord (g3+bb3+d4), `.` a rest, `-` holds the note before it, `!` behind a
; note accents it, `~` shortens it to half a step, `_` slides into the next note without striking it anew. `|` is a bar
; line and means nothing. The line repeats until the beat `to`; notes never last beyond it.
opcode play, 0, iiSSpooo
  ifrom, ito, Svoice, Snotes, ilevel, itranspose, itone, istep xin
  istep = (istep == 0) ? 0.25 : istep
  ilength strlen Snotes
  iword[], icount words Snotes
  iindex = 0
  islid = -1 ; a step that the note before has slid into
  while ifrom + iindex * istep < ito - 0.001 do
    ithis = iindex % icount
    ipos = iword[ithis]
    icode strchar Snotes, ipos
    if icode >= 97 && icode <= 103 && iindex != islid then
      isteps held Snotes, iword, icount, ithis
      ivelocity, ishare, islides marks Snotes, ipos
      itarget = 0
      iafter = isteps * istep
      if islides == 1 then
        islid = iindex + isteps
        inext = islid % icount
        itarget, iend notename Snotes, iword[inext]
        itarget += itranspose
        imore held Snotes, iword, icount, inext
        isteps += imore
      endif
      ilate = swing(iindex, istep)
      ibeat = ifrom + iindex * istep + ilate
      ; A note ends where its last step ends on the straight grid, single steps a little before
      ibeats = min((isteps == 1 ? 0.85 * ishare : isteps) * istep - ilate, ito - ibeat)
      icode = 43
      while icode == 43 do
        inote, ipos notename Snotes, ipos
        at ibeat, Svoice, ibeats, ivelocity * ilevel, inote + itranspose, itone, itarget, iafter
        icode = 0
        if ipos < ilength then
          icode strchar Snotes, ipos
        endif
        ipos += 1
      od
    endif
    iindex += 1
  od
endop
