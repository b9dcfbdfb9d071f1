; SPDX-License-Identifier: GPL-3.0-or-later
; The installer of a brand. packaging/windows/installer/build makes product.nsh and texts.nsh and compiles this.
;
; New files go to a side folder and are swapped in by renaming, so that until then nothing of an installed version changes.
; Exit status: 0 done, 1 cancelled, 2 nothing changed because files could not be written, 3 a newer version is installed,
; 4 the program is still running, 5 refused (rights, folder, another setup), 6 files of the installed version could not be put
; back yet, and the next setup goes on there.

Target amd64-unicode
SetCompressor /SOLID ${COMPRESSOR}
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WordFunc.nsh
!addincludedir "${__FILEDIR__}"
!include product.nsh

!define UNINSTALLS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL "${UNINSTALLS}\${PROGRAM}"
!define STATUS_UNDONE 2
!define STATUS_NEWER 3
!define STATUS_RUNS 4
!define STATUS_REFUSED 5
!define STATUS_HELD 6
!define ADMIN_BYTE 21 ; in a shortcut, with the bit for "run as administrator"
!define ADMIN_BIT 0x20

Name "${PRODUCT}"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES64\${PRODUCT}"
RequestExecutionLevel admin
ManifestDPIAware true
ManifestSupportedOS all
BrandingText "${PUBLISHER}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
AllowSkipFiles off
VIProductVersion "${VERSION}"
VIAddVersionKey /LANG=0 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey /LANG=0 "CompanyName" "${PUBLISHER}"
VIAddVersionKey /LANG=0 "LegalCopyright" "GNU General Public License, version 3 or later"
!uninstfinalize '"${FINALIZE}" "%1"'

Var Installed    ; version that is installed, or empty
Var NewLanguage  ; whether LanguageType is written
Var InMenu       ; 1 or 0
Var OnDesktop    ; 1 or 0
Var AsAdmin      ; 1 or 0
Var Keep         ; 1 or 0: history and settings stay
Var Watched      ; whether the companion ran
Var Other        ; settings of another brand that is installed, too, or empty
Var Welcome      ; text of the first page
Var FirstBox
Var SecondBox
Var ThirdBox

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${PICTURES}/header.bmp"
!define MUI_HEADERIMAGE_UNBITMAP "${PICTURES}/header.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}/side.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${PICTURES}/side.bmp"
!define MUI_LANGDLL_ALLLANGUAGES
!define MUI_CUSTOMFUNCTION_GUIINIT RefuseOlder

!define MUI_WELCOMEPAGE_TEXT "$Welcome"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE $(LICENCE)
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipIfInstalled
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE CheckFolder
!insertmacro MUI_PAGE_DIRECTORY
Page custom ShowOptions TakeOptions
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}.exe"
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.ShowKeep un.TakeKeep
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_UNPAGE_FINISH

!insertmacro InsertLanguages
!include texts.nsh

!include shared.nsh
!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."
!include swap.nsh
!include uninstall.nsh

; --- before the pages

; The language of the command line, else the one that the program has, else the user's choice.
Function ChooseLanguage
  StrCpy $NewLanguage 0
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/LANGUAGE=" $0
  ${IfNot} ${Errors}
    StrCpy $NewLanguage 1
    !insertmacro LanguageByCode
    Return
  ${EndIf}
  ClearErrors
  ReadRegStr $0 HKLM "${SETTINGS_KEY}" "LanguageType"
  ${IfNot} ${Errors}
    !insertmacro LanguageByType
  ${Else}
    StrCpy $NewLanguage 1
  ${EndIf}
  ${If} $Installed == ""
  ${AndIfNot} ${Silent}
    StrCpy $NewLanguage 1
    !insertmacro MUI_LANGDLL_DISPLAY
  ${EndIf}
FunctionEnd

Function ReadChoices
  StrCpy $InMenu 1
  StrCpy $OnDesktop 1
  StrCpy $AsAdmin 1
  ${If} $Installed != ""
    ReadRegDWORD $InMenu HKLM "${UNINSTALL}" "StartMenuEntry"
    ReadRegDWORD $OnDesktop HKLM "${UNINSTALL}" "DesktopEntry"
    ReadRegDWORD $AsAdmin HKLM "${UNINSTALL}" "AsAdministrator"
    ; What the user deleted meanwhile does not come back by itself.
    ${IfNot} ${FileExists} "$SMPROGRAMS\${PRODUCT}.lnk"
      StrCpy $InMenu 0
    ${EndIf}
    ${IfNot} ${FileExists} "$DESKTOP\${PRODUCT}.lnk"
      StrCpy $OnDesktop 0
    ${EndIf}
  ${EndIf}
  ${GetParameters} $1
  !insertmacro TakeSwitch "/NOSTARTMENU" $InMenu
  !insertmacro TakeSwitch "/NODESKTOP" $OnDesktop
  !insertmacro TakeSwitch "/NOADMIN" $AsAdmin
FunctionEnd

Function .onInit
  Call CommonInit
  ReadRegStr $Installed HKLM "${UNINSTALL}" "DisplayVersion"
  ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
  ${If} $Installed != ""
  ${AndIf} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
  Call ChooseLanguage
  Call ReadChoices
  ${If} ${Silent}
    Call RefuseOlder
  ${EndIf}
FunctionEnd

; Here the chosen language has come into force.
Function RefuseOlder
  StrCpy $Welcome "$(MUI_TEXT_WELCOME_INFO_TEXT)"
  ${If} $Installed != ""
    ${VersionCompare} "$Installed" "${VERSION}" $0
    ${If} $0 = 1
      Push "$(NEWER)"
      Call Say
      SetErrorLevel ${STATUS_NEWER}
      Quit
    ${EndIf}
    StrCpy $Welcome "$(UPGRADE)"
    ${If} $0 = 0
      StrCpy $Welcome "$(REPAIR)"
    ${EndIf}
  ${EndIf}
FunctionEnd

; --- the pages

Function SkipIfInstalled
  ${If} $Installed != ""
    Abort
  ${EndIf}
FunctionEnd

; Whether the folder holds what is not ours, in $1. A list of our files tells that it is ours, and so does the history of a
; disk that an earlier removal has kept.
Function HoldsOthers
  StrCpy $1 0
  ${If} ${FileExists} "$INSTDIR\~new\contents.txt"
    Return
  ${EndIf}
  ${If} ${FileExists} "$INSTDIR\contents.txt"
    ; Others may have a file of this name, too.
    ${If} ${FileExists} "$INSTDIR\${PROGRAM}.exe"
    ${OrIf} ${FileExists} "$INSTDIR\uninstall.exe"
      Return
    ${EndIf}
  ${EndIf}
  ClearErrors
  FindFirst $2 $3 "$INSTDIR\*.*"
  ${DoUntil} ${Errors}
    ${If} $3 == "history"
      ${IfNot} ${FileExists} "$INSTDIR\history\dates-*.txt"
        StrCpy $1 1
      ${EndIf}
    ${ElseIf} $3 != "."
    ${AndIf} $3 != ".."
    ${AndIf} $3 != "~new"
    ${AndIf} $3 != "~old"
    ${AndIf} $3 != ""
      StrCpy $1 1
    ${EndIf}
    FindNext $2 $3
  ${Loop}
  FindClose $2
FunctionEnd

; A folder of the user's own gets a folder for the program in it.
Function OwnFolder
  Call HoldsOthers
  ${If} $1 = 1
    StrCpy $INSTDIR "$INSTDIR\${PRODUCT}"
    Call HoldsOthers
  ${EndIf}
FunctionEnd

Function CheckFolder
  Call OwnFolder
  ${If} $1 = 1
    Push "$(FOREIGN)"
    Call Say
    Abort
  ${EndIf}
FunctionEnd

Function ShowOptions
  !insertmacro MUI_HEADER_TEXT "$(OPTIONS)" "$(OPTIONS_MORE)"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateCheckbox} 0 10u 100% 12u "$(START_MENU)"
  Pop $FirstBox
  ${NSD_SetState} $FirstBox $InMenu
  ${NSD_CreateCheckbox} 0 30u 100% 12u "$(DESKTOP)"
  Pop $SecondBox
  ${NSD_SetState} $SecondBox $OnDesktop
  ${NSD_CreateCheckbox} 0 50u 100% 12u "$(AS_ADMIN)"
  Pop $ThirdBox
  ${NSD_SetState} $ThirdBox $AsAdmin
  ${NSD_CreateLabel} 12u 64u 95% 28u "$(AS_ADMIN_WHY)"
  Pop $0
  nsDialogs::Show
FunctionEnd

Function TakeOptions
  ${NSD_GetState} $FirstBox $InMenu
  ${NSD_GetState} $SecondBox $OnDesktop
  ${NSD_GetState} $ThirdBox $AsAdmin
FunctionEnd

; --- installing

; A shortcut at the path $0. Its flag for the rights is not within reach of the compiler's command.
Function MakeShortcut
  SetOutPath "$INSTDIR"
  CreateShortcut "$0" "$INSTDIR\${PROGRAM}.exe" "" "$INSTDIR\${PROGRAM}.exe" 0
  ${If} $AsAdmin = 1
    ClearErrors
    FileOpen $2 "$0" a
    ${IfNot} ${Errors}
      FileSeek $2 ${ADMIN_BYTE} SET
      FileReadByte $2 $3
      IntOp $3 $3 | ${ADMIN_BIT}
      FileSeek $2 ${ADMIN_BYTE} SET
      FileWriteByte $2 $3
      FileClose $2
    ${EndIf}
  ${EndIf}
FunctionEnd

Function MakeEntries
  Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  Delete "$DESKTOP\${PRODUCT}.lnk"
  ${If} $InMenu = 1
    StrCpy $0 "$SMPROGRAMS\${PRODUCT}.lnk"
    Call MakeShortcut
  ${EndIf}
  ${If} $OnDesktop = 1
    StrCpy $0 "$DESKTOP\${PRODUCT}.lnk"
    Call MakeShortcut
  ${EndIf}
FunctionEnd

; The task of the program's own Settings: it runs on a battery, too, and has no end.
Function WriteTask
  FileOpen $2 "$PLUGINSDIR\task.xml" w
  FileWriteUTF16LE /BOM $2 '<?xml version="1.0" encoding="UTF-16"?>$\r$\n'
  FileWriteUTF16LE $2 '<Task version="1.2" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">$\r$\n'
  FileWriteUTF16LE $2 '<Triggers><LogonTrigger><Delay>PT30S</Delay></LogonTrigger></Triggers>$\r$\n'
  FileWriteUTF16LE $2 '<Principals><Principal id="Author"><RunLevel>HighestAvailable</RunLevel></Principal></Principals>$\r$\n'
  FileWriteUTF16LE $2 '<Settings><DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>'
  FileWriteUTF16LE $2 '<StopIfGoingOnBatteries>false</StopIfGoingOnBatteries><StartWhenAvailable>true</StartWhenAvailable>'
  FileWriteUTF16LE $2 '<ExecutionTimeLimit>PT0S</ExecutionTimeLimit></Settings>$\r$\n'
  FileWriteUTF16LE $2 '<Actions Context="Author"><Exec><Command>$INSTDIR\${COMPANION}.exe</Command>'
  FileWriteUTF16LE $2 '<Arguments>Schedular</Arguments></Exec></Actions></Task>$\r$\n'
  FileClose $2
FunctionEnd

; Lets the companion run from logon on: where nobody opens the program nothing else would start it. A task that is there stays,
; it may be a user's own. Outside of the system's folder others may be able to replace what the task runs with all rights.
Function WatchAtLogon
  StrLen $2 "$PROGRAMFILES64\"
  StrCpy $2 $INSTDIR $2
  ${If} $2 != "$PROGRAMFILES64\"
    Return
  ${EndIf}
  nsExec::Exec '"$SYSDIR\schtasks.exe" /Query /TN ${COMPANION}'
  Pop $2
  ${If} $2 != 0
    Call WriteTask
    nsExec::Exec '"$SYSDIR\schtasks.exe" /Create /F /TN ${COMPANION} /XML "$PLUGINSDIR\task.xml"'
    Pop $2
  ${EndIf}
  ${If} $2 == 0
    StrCpy $Watched 1
  ${EndIf}
FunctionEnd

Function WriteRegistry
  !insertmacro WriteSettings
  ; /METRICS=FILE: where the companion writes the metrics of the disks.
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/METRICS=" $0
  ${If} ${Errors}
    ; A shell may put its quotes around the whole.
    ClearErrors
    ${WordFind2X} $1 '"/METRICS=' '"' "E+1" $0
  ${EndIf}
  ${IfNot} ${Errors}
    WriteRegStr HKLM "${SETTINGS_KEY}" "MetricsPath" $0
    ${If} $0 != ""
      Call WatchAtLogon
    ${EndIf}
  ${EndIf}
  ${If} $NewLanguage = 1
    WriteRegStr HKLM "${SETTINGS_KEY}" "LanguageType" "$(LANGUAGE_TYPE)"
  ${EndIf}
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "$INSTDIR\${PROGRAM}.exe,0"
  WriteRegStr HKLM "${UNINSTALL}" "URLInfoAbout" "${SITE}"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "StartMenuEntry" $InMenu
  WriteRegDWORD HKLM "${UNINSTALL}" "DesktopEntry" $OnDesktop
  WriteRegDWORD HKLM "${UNINSTALL}" "AsAdministrator" $AsAdmin
FunctionEnd

; The companion runs again if it ran before, or if its task is new: as the user who is logged on, who may be another than the
; one of this setup. The task of the logon starts it so. Where there is none, or it starts nothing, the user's desktop does.
Function WatchAgain
  ${If} $Watched = 0
    Return
  ${EndIf}
  nsExec::Exec '"$SYSDIR\schtasks.exe" /Run /TN ${COMPANION}'
  Pop $3
  ${If} $3 == 0
    StrCpy $0 "${COMPANION}.exe"
    StrCpy $4 1
    StrCpy $5 25
    Call WaitUntil
    ${If} $1 = 1
      Return
    ${EndIf}
  ${EndIf}
  ; The session 0 of services has no desktop; there the next logon starts it.
  System::Call 'kernel32::GetCurrentProcessId() i .r2'
  System::Call 'kernel32::ProcessIdToSessionId(i r2, *i .r1)'
  ${If} $1 <> 0
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\${COMPANION}.exe"'
  ${EndIf}
FunctionEnd

Section
  ${If} $Installed == ""
    Call OwnFolder
    ${If} $1 = 1
      Push "$(FOREIGN)"
      Call Say
      SetErrorLevel ${STATUS_REFUSED}
      Quit
    ${EndIf}
  ${EndIf}
  Call PutBack
  ${If} $8 = 1
    Abort
  ${EndIf}
  !insertmacro UnpackFiles
  SetOutPath "$INSTDIR\~new"
  WriteUninstaller "$INSTDIR\~new\uninstall.exe"
  SetOutPath "$TEMP"
  IfFileExists "$INSTDIR\~new\uninstall.exe" +2
    Abort
  Call EndPrograms
  ${If} $1 = 1
    Call PutBack
    SetErrorLevel ${STATUS_RUNS}
    Quit
  ${EndIf}
  Call Swap
  ${If} $8 = 1
    Abort
  ${EndIf}
  RMDir /r /REBOOTOK "$INSTDIR\~old"
  RMDir /r "$INSTDIR\~new"
  Call WriteRegistry
  Call MakeEntries
  Call WatchAgain
SectionEnd

; Leaves everything as it was.
Function .onInstFailed
  SetOutPath "$TEMP"
  Call PutBack
  ${If} $8 = 1
    Push "$(HELD)"
    Call Say
    SetErrorLevel ${STATUS_HELD}
    Return
  ${EndIf}
  Call WatchAgain
  Push "$(UNDONE)"
  Call Say
  SetErrorLevel ${STATUS_UNDONE}
FunctionEnd
