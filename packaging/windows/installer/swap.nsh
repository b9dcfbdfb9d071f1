; SPDX-License-Identifier: GPL-3.0-or-later
; How the new files take the place of the old ones, and the way back.

; Renames $3 to $4, in several tries: a scanner may hold a new file for a moment. Sets $8 to 1 if that is not possible.
Function Move
  StrCpy $9 0
  ${Do}
    ClearErrors
    Rename "$3" "$4"
    ${IfNot} ${Errors}
      Return
    ${EndIf}
    Sleep 200
    IntOp $9 $9 + 1
  ${LoopUntil} $9 = 5
  StrCpy $8 1
FunctionEnd

; An interrupted swap leaves the old files in ~old, and in ~new its mark and the list of the new files: puts the old ones back.
; The new ones go back to ~new, so that a second try knows which ones are in place. Without the mark ~old is only what could
; not be removed the last time; with it ~old may hold the only copy. $8 is 1 if a file is held: then all of it stays for the
; next setup.
Function PutBack
  StrCpy $8 0
  ${If} ${FileExists} "$INSTDIR\~old\*.*"
  ${AndIf} ${FileExists} "$INSTDIR\~new\swap"
  ${AndIf} ${FileExists} "$INSTDIR\~new\contents.txt"
    FileOpen $5 "$INSTDIR\~new\contents.txt" r
    ${Do}
      Call NextName
      ${If} $0 == ""
        ${ExitDo}
      ${EndIf}
      ${If} ${FileExists} "$INSTDIR\$0"
      ${AndIfNot} ${FileExists} "$INSTDIR\~new\$0"
        StrCpy $3 "$INSTDIR\$0"
        StrCpy $4 "$INSTDIR\~new\$0"
        Call Move
      ${EndIf}
    ${Loop}
    FileClose $5
    ClearErrors
    FindFirst $2 $0 "$INSTDIR\~old\*.*"
    ${DoUntil} ${Errors}
      ; What is in its place was never moved away: then the file in ~old is older.
      ${If} $0 != "."
      ${AndIf} $0 != ".."
      ${AndIfNot} ${FileExists} "$INSTDIR\$0"
        StrCpy $3 "$INSTDIR\~old\$0"
        StrCpy $4 "$INSTDIR\$0"
        Call Move
      ${EndIf}
      ClearErrors
      FindNext $2 $0
    ${Loop}
    FindClose $2
    ${If} $8 = 0
      ClearErrors
      Delete "$INSTDIR\~new\swap"
      ${If} ${Errors}
        StrCpy $8 1
      ${EndIf}
    ${EndIf}
    ${If} $8 = 1
      Return
    ${EndIf}
    RMDir "$INSTDIR\~old"
  ${Else}
    RMDir /r "$INSTDIR\~old"
  ${EndIf}
  RMDir /r "$INSTDIR\~new"
  RMDir "$INSTDIR"
FunctionEnd

; Moves each name of the list $7 from the folder to ~old. $8 is 1 if one cannot be moved.
Function MoveAway
  FileOpen $5 $7 r
  ${Do}
    Call NextName
    ${If} $0 == ""
    ${OrIf} $8 = 1
      ${ExitDo}
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\$0"
    ${AndIf} $0 != "contents.txt"
      StrCpy $3 "$INSTDIR\$0"
      StrCpy $4 "$INSTDIR\~old\$0"
      Call Move
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
    ${If} $8 = 0
      StrCpy $3 "$INSTDIR\contents.txt"
      StrCpy $4 "$INSTDIR\~old\contents.txt"
      Call Move
    ${EndIf}
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
      ${OrIf} $8 = 1
        ${ExitDo}
      ${EndIf}
      ${If} $0 != "contents.txt"
        StrCpy $3 "$INSTDIR\~new\$0"
        StrCpy $4 "$INSTDIR\$0"
        Call Move
      ${EndIf}
    ${Loop}
    FileClose $5
  ${EndIf}
  ${If} $8 = 0
    StrCpy $3 "$INSTDIR\~new\contents.txt"
    StrCpy $4 "$INSTDIR\contents.txt"
    Call Move
  ${EndIf}
FunctionEnd
