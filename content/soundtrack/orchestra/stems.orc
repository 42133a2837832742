; SPDX-License-Identifier: MIT
; Stems, for measuring only: the sustained voices and the buses in mono, as they meet before the soft clip.
; `render --stems` writes them as 16-bit channels in the order of their names in stems.txt.

gSVoices[] fillarray "Bass", "Reese", "Sub", "Growl", "Acid", "Lead", "Wail", "Stab", "Pad", "Choir", "Drone", "Arp", \
  "Shimmer", "Bell", "Ride"
giVoices     lenarray gSVoices
giFirstSynth = 4  ; voices before it go to the bass,
giFirstPlain = 13 ; from here on to the effects,
giFirstDrum  = 14 ; from here on to the drums; those between duck under the kick
gSBuses[]    fillarray "mix", "kick", "basses", "wet", "drums", "drums-plain"
giStemScale  = 0.3 ; keeps the sum of all below full scale
gaStems[]    init giVoices + 6
zakinit 100, 1

; One voice, and all after it.
opcode voices, 0, iaaak
  index, asynth, abass, adrum, kveil xin
  inumber nstrnum gSVoices[index]
  avoice zar inumber
  if index < giFirstSynth then
    avoice butterlp avoice * abass * giBassFader, min(9000, kveil * 1.4)
  elseif index < giFirstPlain then
    avoice butterlp avoice * asynth * giSynthFader, kveil
  elseif index < giFirstDrum then
    avoice = avoice * giPlainFader
  else
    avoice = avoice * adrum * giDrumFader
  endif
  gaStems[index] = avoice * giStemScale
  if index + 1 < giVoices then
    voices index + 1, asynth, abass, adrum, kveil
  endif
endop

; stems mix, kick, basses, synths' ducking, basses' ducking, gain of the drum bus, veil
opcode stems, 0, aaaaaak
  amix, akick, abasses, asynth, abass, adrum, kveil xin
  voices 0, asynth, abass, adrum, kveil
  gaStems[giVoices] = amix * giStemScale
  gaStems[giVoices + 1] = akick * giStemScale
  gaStems[giVoices + 2] = abasses * giStemScale
  gaStems[giVoices + 3] = (gaWetL + gaWetR) * 0.5 * giStemScale
  gaStems[giVoices + 4] = (gaDrumL + gaDrumR) * 0.5 * adrum * giDrumFader * giStemScale
  gaStems[giVoices + 5] = (gaDrumL + gaDrumR) * 0.5 * giDrumFader * giStemScale
  fout "$STEMS", 2, gaStems
  zacl 0, 99
endop

index = 0
while index < giVoices + 6 do
  Sname = index < giVoices ? gSVoices[index] : gSBuses[index - giVoices]
  fprints "$NAMES", "%s\n", Sname
  index += 1
od
