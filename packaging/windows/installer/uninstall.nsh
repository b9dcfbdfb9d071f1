; SPDX-License-Identifier: GPL-3.0-or-later
; How the program is removed.

Function un.onInit
  Call un.CommonInit
  ReadRegStr $0 HKLM "${SETTINGS_KEY}" "LanguageType"
  !insertmacro LanguageByType
  StrCpy $Keep 1
  ${GetParameters} $1
  !insertmacro TakeSwitch "/REMOVEALL" $Keep
FunctionEnd

Function un.ShowKeep
  !insertmacro MUI_HEADER_TEXT "${PRODUCT} ${VERSION}" "$(REMOVE)"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateCheckbox} 0 10u 100% 12u "$(KEEP)"
  Pop $FirstBox
  ${NSD_SetState} $FirstBox $Keep
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:$(^UninstallBtn)"
  nsDialogs::Show
FunctionEnd

Function un.TakeKeep
  ${NSD_GetState} $FirstBox $Keep
FunctionEnd

; Removes the folder $0, which others may have swapped for a link: the system's command does not follow links.
Function un.RemoveTree
  ${If} ${FileExists} "$0\*.*"
    nsExec::Exec '"$SYSDIR\cmd.exe" /d /c rd /s /q "$0"'
    Pop $1
  ${EndIf}
FunctionEnd

; Temp folders of the program, by their names: velmora-halvane-, then a word and digits.
Function un.RemoveTempFolders
  ClearErrors
  FindFirst $2 $3 "$APPDATA\velmora-halvane-*"
  ${DoUntil} ${Errors}
    StrCpy $0 "$APPDATA\$3"
    ${WordFind} "$3" " " "#" $4
    ${WordFind} "$3" "%" "#" $5
    ${If} $4 == $3
    ${AndIf} $5 == $3
      Call un.RemoveTree
    ${EndIf}
    ClearErrors
    FindNext $2 $3
  ${Loop}
  FindClose $2
FunctionEnd

; Removes $INSTDIR\$0, a file or a folder.
Function un.RemoveEntry
  ${If} ${FileExists} "$INSTDIR\$0\*.*"
    RMDir /r "$INSTDIR\$0"
  ${Else}
    Delete "$INSTDIR\$0"
  ${EndIf}
FunctionEnd

Function un.RemoveFiles
  FileOpen $5 "$INSTDIR\contents.txt" r
  ${Do}
    Call un.NextName
    ${If} $0 == ""
      ${ExitDo}
    ${EndIf}
    ${If} $0 != "contents.txt"
      Call un.RemoveEntry
    ${EndIf}
  ${Loop}
  FileClose $5
  Delete "$INSTDIR\contents.txt"
  RMDir /r "$INSTDIR\~new"
  RMDir /r "$INSTDIR\~old"
FunctionEnd

; The path of the log by the settings $0, in $0.
Function un.LogPath
  ClearErrors
  ReadRegStr $0 HKLM "$0" "LogSavePath"
  ${If} ${Errors}
    StrCpy $0 "${LOG}"
  ${EndIf}
  ${WordReplace} "$0" "/" "\" "+" $0
FunctionEnd

; Removes what the companion wrote at a place of the settings: its log, if another brand does not write it, too. It is known by
; its first line: a time, two blanks and a word. So are the metrics by theirs.
Function un.RemoveWritten
  ReadRegStr $2 HKLM "${SETTINGS_KEY}" "MetricsPath"
  ClearErrors
  FileOpen $3 $2 r
  ${IfNot} ${Errors}
    FileRead $3 $4
    FileClose $3
    StrCpy $4 $4 15
    ${If} $4 == "# HELP halvane_"
      Delete $2
    ${EndIf}
  ${EndIf}
  StrCpy $0 "${SETTINGS_KEY}"
  Call un.LogPath
  StrCpy $2 $0
  ${If} $Other != ""
    StrCpy $0 $Other
    Call un.LogPath
    ${If} $0 == $2
      Return
    ${EndIf}
  ${EndIf}
  ClearErrors
  FileOpen $3 $2 r
  ${If} ${Errors}
    Return
  ${EndIf}
  FileRead $3 $4
  FileClose $3
  StrCpy $4 $4 5 26
  ${If} $4 == "  INF"
  ${OrIf} $4 == "  WAR"
  ${OrIf} $4 == "  CRI"
    Delete $2
  ${EndIf}
FunctionEnd

Function un.RemoveHistory
  RMDir /r "$INSTDIR\history"
  ${If} $Other == ""
    StrCpy $0 "$APPDATA\VelmoraHalvane"
    Call un.RemoveTree
    SetShellVarContext current
    StrCpy $0 "$LOCALAPPDATA\VelmoraHalvane"
    Call un.RemoveTree
    SetShellVarContext all
  ${EndIf}
  DeleteRegKey HKLM "${SETTINGS_KEY}"
  !insertmacro RemoveEmptyParents
FunctionEnd

Section Uninstall
  ; Without its list the folder is not ours.
  ${IfNot} ${FileExists} "$INSTDIR\contents.txt"
    Push "$(NO_LIST)"
    Call un.Say
    SetErrorLevel ${STATUS_REFUSED}
    Quit
  ${EndIf}
  Call un.EndPrograms
  ${If} $1 = 1
    SetErrorLevel ${STATUS_RUNS}
    Quit
  ${EndIf}
  nsExec::Exec '"$SYSDIR\schtasks.exe" /Delete /F /TN ${COMPANION}'
  Pop $0
  Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  Delete "$DESKTOP\${PRODUCT}.lnk"
  Call un.RemoveFiles
  ; All brands share their folders outside of this one.
  !insertmacro FindOtherBrand
  ${If} $Other == ""
    Call un.RemoveTempFolders
    ; What came of an update that was not started.
    StrCpy $0 "$APPDATA\VelmoraHalvane\update"
    Call un.RemoveTree
  ${EndIf}
  Call un.RemoveWritten
  ${If} $Keep = 0
    Call un.RemoveHistory
  ${Else}
    ; The task of the logon is gone.
    ReadRegDWORD $0 HKLM "${SETTINGS_KEY}" "ShowTrayIcon"
    ${If} $0 = 1
      WriteRegDWORD HKLM "${SETTINGS_KEY}" "ShowTrayIcon" 0
    ${EndIf}
  ${EndIf}
  ; Only a history with something in it tells a later setup that the folder is ours.
  RMDir "$INSTDIR\history"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL}"
SectionEnd
