; SPDX-License-Identifier: GPL-3.0-or-later
; What installer and uninstaller share: said in both, as the compiler wants other names in the uninstaller.

; Sets the variable to 0 if the command line $1 has the switch.
!macro TakeSwitch name variable
  ClearErrors
  ${GetOptions} $1 "${name}" $0
  ${IfNot} ${Errors}
    StrCpy ${variable} 0
  ${EndIf}
!macroend

!macro SharedFunctions un

; Tells the text on the stack: in a box, or in silence on the console that started this.
Function ${un}Say
  Exch $9
  ${If} ${Silent}
    System::Call 'kernel32::AttachConsole(i -1)'
    System::Call 'kernel32::GetStdHandle(i -11) p .r8'
    StrLen $7 "$9"
    System::Call 'kernel32::WriteConsoleW(p r8, w r9, i r7, *i, p 0) i .r7'
    ${If} $7 = 0
      FileWrite $8 "$9" ; no console but a file
    ${EndIf}
    FileWrite $8 "$\r$\n"
  ${Else}
    MessageBox MB_OK|MB_ICONEXCLAMATION "$9"
  ${EndIf}
  Pop $9
FunctionEnd

; Whether the program $0 of this folder runs: a running program cannot be written. Result in $1.
Function ${un}Runs
  StrCpy $1 0
  IfFileExists "$INSTDIR\$0" 0 done
  ClearErrors
  FileOpen $2 "$INSTDIR\$0" a
  ${If} ${Errors}
    StrCpy $1 1
  ${Else}
    FileClose $2
  ${EndIf}
  done:
FunctionEnd

; Waits until the program $0 runs ($4 is 1) or does not ($4 is 0), $5 times 200 ms at most. $1 tells whether it runs then.
Function ${un}WaitUntil
  StrCpy $3 0
  ${Do}
    Call ${un}Runs
    ${If} $1 = $4
    ${OrIf} $3 >= $5
      Return
    ${EndIf}
    Sleep 200
    IntOp $3 $3 + 1
  ${Loop}
FunctionEnd

; Ends the program $0 by taskkill with the option $6, or tells $7. $5 as above. $1 is 0 if it does not run any more.
Function ${un}EndProgram
  again:
  Call ${un}Runs
  ${If} $1 = 0
    Return
  ${EndIf}
  nsExec::Exec '"$SYSDIR\taskkill.exe" $6 /IM $0'
  Pop $4
  StrCpy $4 0
  Call ${un}WaitUntil
  ${If} $1 = 1
    ${If} ${Silent}
      Push $7
      Call ${un}Say
    ${Else}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$7" IDRETRY again
    ${EndIf}
  ${EndIf}
FunctionEnd

; Asks the program to close by its window and waits; it may ask its user. A job is never interrupted. Then ends the companion.
; $1 is 0 if nothing runs any more; otherwise the user knows.
Function ${un}EndPrograms
  StrCpy $0 "${PROGRAM}.exe"
  StrCpy $5 75
  StrCpy $6 ""
  StrCpy $7 "$(STILL_RUNS)"
  Call ${un}EndProgram
  ${If} $1 = 1
    Return
  ${EndIf}
  StrCpy $0 "${COMPANION}.exe"
  Call ${un}Runs
  StrCpy $Watched $1
  StrCpy $5 50
  StrCpy $6 "/F"
  StrCpy $7 "$(COMPANION_RUNS)"
  Call ${un}EndProgram
FunctionEnd

; The next name in the file $5 of names, without its line end, in $0; empty at the end.
Function ${un}NextName
  StrCpy $0 ""
  ClearErrors
  FileRead $5 $0
  ${If} ${Errors}
    StrCpy $0 ""
  ${EndIf}
  ${Do}
    StrCpy $6 $0 1 -1
    ${If} $6 != "$\r"
    ${AndIf} $6 != "$\n"
      ${ExitDo}
    ${EndIf}
    StrCpy $0 $0 -1
  ${Loop}
FunctionEnd

Function ${un}CommonInit
  SetRegView 64
  SetShellVarContext all
  StrCpy $Watched 0
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Global\Setup-${PROGRAM}") p .r0 ?e'
  Pop $0
  ${If} $0 = 183
    Push "$(SETUP_RUNS)"
    Call ${un}Say
    SetErrorLevel ${STATUS_REFUSED}
    Quit
  ${EndIf}
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    Push "$(NO_RIGHTS)"
    Call ${un}Say
    SetErrorLevel ${STATUS_REFUSED}
    Quit
  ${EndIf}
FunctionEnd

!macroend
