; SPDX-License-Identifier: GPL-3.0-or-later
; How the new files take the place of the old ones, and the way back.

; An interrupted swap leaves the old files in ~old, and in ~new its mark and the list of the new files: puts the old ones back.
; Without the mark ~old is only what could not be removed the last time.
Function PutBack
  ${If} ${FileExists} "$INSTDIR\~old\*.*"
  ${AndIf} ${FileExists} "$INSTDIR\~new\swap"
  ${AndIf} ${FileExists} "$INSTDIR\~new\contents.txt"
    FileOpen $5 "$INSTDIR\~new\contents.txt" r
    ${Do}
      Call NextName
      ${If} $0 == ""
        ${ExitDo}
      ${EndIf}
      ${IfNot} ${FileExists} "$INSTDIR\~new\$0"
        Call RemoveEntry
      ${EndIf}
    ${Loop}
    FileClose $5
    ClearErrors
    FindFirst $2 $0 "$INSTDIR\~old\*.*"
    ${DoUntil} ${Errors}
      ${If} $0 != "."
      ${AndIf} $0 != ".."
        Rename "$INSTDIR\~old\$0" "$INSTDIR\$0"
      ${EndIf}
      ClearErrors
      FindNext $2 $0
    ${Loop}
    FindClose $2
    RMDir "$INSTDIR\~old"
  ${Else}
    RMDir /r "$INSTDIR\~old"
  ${EndIf}
  RMDir /r "$INSTDIR\~new"
  RMDir "$INSTDIR"
FunctionEnd

; Moves each name of the list $7 from the folder to ~old. Sets the error flag if one cannot be moved.
Function MoveAway
  StrCpy $8 0
  FileOpen $5 $7 r
  ${Do}
    Call NextName
    ${If} $0 == ""
      ${ExitDo}
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\$0"
    ${AndIf} $0 != "contents.txt"
      ClearErrors
      Rename "$INSTDIR\$0" "$INSTDIR\~old\$0"
      ${If} ${Errors}
        StrCpy $8 1
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $5
FunctionEnd

; Swaps the files of ~new in. The list of the new files moves last. $8 is 1 if that was not possible.
Function Swap
  StrCpy $8 0
  CreateDirectory "$INSTDIR\~old"
  ClearErrors
  FileOpen $5 "$INSTDIR\~new\swap" w
  ${If} ${Errors}
    StrCpy $8 1
    Return
  ${EndIf}
  FileClose $5
  ${If} ${FileExists} "$INSTDIR\contents.txt"
    StrCpy $7 "$INSTDIR\contents.txt"
    Call MoveAway
    ClearErrors
    Rename "$INSTDIR\contents.txt" "$INSTDIR\~old\contents.txt"
  ${EndIf}
  ${If} $8 = 0
    StrCpy $7 "$INSTDIR\~new\contents.txt"
    Call MoveAway
  ${EndIf}
  ${If} $8 = 0
    FileOpen $5 "$INSTDIR\~new\contents.txt" r
    ${Do}
      Call NextName
      ${If} $0 == ""
        ${ExitDo}
      ${EndIf}
      ${If} $0 != "contents.txt"
        ClearErrors
        Rename "$INSTDIR\~new\$0" "$INSTDIR\$0"
        ${If} ${Errors}
          StrCpy $8 1
        ${EndIf}
      ${EndIf}
    ${Loop}
    FileClose $5
  ${EndIf}
  ${If} $8 = 0
    ClearErrors
    Rename "$INSTDIR\~new\contents.txt" "$INSTDIR\contents.txt"
    ${If} ${Errors}
      StrCpy $8 1
    ${EndIf}
  ${EndIf}
FunctionEnd
