; The installer for Windows: for one user, into a folder of his own, since the tool keeps its languages beside the executable.
; packaging/windows/installer.py calls it with VERSION, FOUR_NUMBERS, ICON, OUTPUT and FILES, which holds a macro for the
; files and one for the languages.
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave off
!include MUI2.nsh
!include LogicLib.nsh
!include "${FILES}"

!define NAME "Calora configurator"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\CaloraConfigurator"
Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${FOUR_NUMBERS}"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME}"
VIAddVersionKey CompanyName "Calora"
VIAddVersionKey LegalCopyright "Calora developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\calora-configurator.exe"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
; The first is for every other language of Windows.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Czech
!insertmacro MUI_LANGUAGE Danish
!insertmacro MUI_LANGUAGE Dutch
!insertmacro MUI_LANGUAGE Finnish
!insertmacro MUI_LANGUAGE French
!insertmacro MUI_LANGUAGE German
!insertmacro MUI_LANGUAGE Greek
!insertmacro MUI_LANGUAGE Hungarian
!insertmacro MUI_LANGUAGE Italian
!insertmacro MUI_LANGUAGE Norwegian
!insertmacro MUI_LANGUAGE Polish
!insertmacro MUI_LANGUAGE Portuguese
!insertmacro MUI_LANGUAGE Romanian
!insertmacro MUI_LANGUAGE Spanish
!insertmacro MUI_LANGUAGE Swedish

; All of a file: $R0 becomes a place in memory, or 0, $R1 its length.
!macro Read path
    StrCpy $R0 0
    StrCpy $R1 0
    ClearErrors
    FileOpen $R9 "${path}" r
    ${IfNot} ${Errors}
        FileSeek $R9 0 END $R1
        FileSeek $R9 0 SET
        System::Call 'kernel32::GlobalAlloc(i 0, p R1)p.R0'
        System::Call 'kernel32::ReadFile(p R9, p R0, i R1, *i .R8, p 0)'
        FileClose $R9
    ${EndIf}
!macroend

; Whether the language $0 in the folder "language" is as the folder $1 has it: $2 becomes 1, otherwise 0.
!macro SameLanguage un
Function ${un}SameLanguage
    StrCpy $2 0
    !insertmacro Read "$INSTDIR\language\$0"
    StrCpy $R2 $R0
    StrCpy $R3 $R1
    !insertmacro Read "$1\$0"
    ${If} $R2 P<> 0
    ${AndIf} $R0 P<> 0
        ${If} $R1 = $R3
            System::Call 'ntdll::RtlCompareMemory(p R0, p R2, p R1)p.R4'
            ${If} $R4 = $R1
                StrCpy $2 1
            ${EndIf}
        ${EndIf}
    ${EndIf}
    ${If} $R0 P<> 0
        System::Call 'kernel32::GlobalFree(p R0)'
    ${EndIf}
    ${If} $R2 P<> 0
        System::Call 'kernel32::GlobalFree(p R2)'
    ${EndIf}
FunctionEnd
!macroend
!insertmacro SameLanguage ""
!insertmacro SameLanguage un.

; A tool that runs holds its executable open.
!macro StopIfRunning
    ${If} ${FileExists} "$INSTDIR\calora-configurator.exe"
        again:
        ClearErrors
        FileOpen $0 "$INSTDIR\calora-configurator.exe" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME}: $(running)" /SD IDCANCEL IDRETRY again
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend
LangString running ${LANG_ENGLISH} "Please close the tool first."
LangString running ${LANG_CZECH} "Nejprve prosím nástroj zavřete."
LangString running ${LANG_DANISH} "Luk først værktøjet."
LangString running ${LANG_DUTCH} "Sluit eerst het programma."
LangString running ${LANG_FINNISH} "Sulje ensin työkalu."
LangString running ${LANG_FRENCH} "Fermez d’abord l’outil."
LangString running ${LANG_GERMAN} "Bitte schließen Sie erst das Programm."
LangString running ${LANG_GREEK} "Κλείστε πρώτα το εργαλείο."
LangString running ${LANG_HUNGARIAN} "Előbb zárja be a programot."
LangString running ${LANG_ITALIAN} "Chiudete prima lo strumento."
LangString running ${LANG_NORWEGIAN} "Lukk verktøyet først."
LangString running ${LANG_POLISH} "Najpierw zamknąć narzędzie."
LangString running ${LANG_PORTUGUESE} "Feche primeiro a ferramenta."
LangString running ${LANG_ROMANIAN} "Închideți mai întâi instrumentul."
LangString running ${LANG_SPANISH} "Cierre primero la herramienta."
LangString running ${LANG_SWEDISH} "Stäng verktyget först."

; A delivered language that is new, or still as a former version brought it, comes with the tool; all others are the user's.
!macro Language name
    StrCpy $0 "${name}"
    Call TakeLanguage
!macroend
Function TakeLanguage
    ${If} ${FileExists} "$INSTDIR\language\$0"
        StrCpy $1 "$INSTDIR\delivered"
        Call SameLanguage
    ${Else}
        StrCpy $2 1
    ${EndIf}
    ${If} $2 = 1
        CopyFiles /SILENT "$PLUGINSDIR\language\$0" "$INSTDIR\language"
    ${EndIf}
FunctionEnd

Section
    !insertmacro StopIfRunning
    ; What only a former version had.
    RMDir /r "$INSTDIR\guide"
    RMDir /r "$INSTDIR\licences"
    !insertmacro Files
    InitPluginsDir
    SetOutPath "$PLUGINSDIR\language"
    !insertmacro LanguageFiles
    CreateDirectory "$INSTDIR\language"
    !insertmacro Languages
    ${IfNot} ${FileExists} "$INSTDIR\language\language.ini"
        CopyFiles /SILENT "$PLUGINSDIR\language\language.ini" "$INSTDIR\language"
    ${EndIf}
    ; To compare with at the next upgrade.
    RMDir /r "$INSTDIR\delivered"
    CreateDirectory "$INSTDIR\delivered"
    CopyFiles /SILENT "$PLUGINSDIR\language\*.json" "$INSTDIR\delivered"

    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\calora-configurator.exe"
    WriteRegStr HKCU "${ENTRY}" DisplayName "${NAME}"
    WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\calora-configurator.exe"
    WriteRegStr HKCU "${ENTRY}" Publisher "Calora"
    WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" EstimatedSize ${SIZE}
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
SectionEnd

; The user's own and changed languages stay, and with them the choice among them.
Section Uninstall
    !insertmacro StopIfRunning
    FindFirst $3 $0 "$INSTDIR\delivered\*.json"
    ${DoWhile} $0 != ""
        StrCpy $1 "$INSTDIR\delivered"
        Call un.SameLanguage
        ${If} $2 = 1
            Delete "$INSTDIR\language\$0"
        ${EndIf}
        FindNext $3 $0
    ${Loop}
    FindClose $3
    ${IfNot} ${FileExists} "$INSTDIR\language\*.json"
        Delete "$INSTDIR\language\language.ini"
    ${EndIf}
    RMDir "$INSTDIR\language"
    RMDir /r "$INSTDIR\delivered"
    RMDir /r "$INSTDIR\guide"
    RMDir /r "$INSTDIR\licences"
    !insertmacro DeleteFiles
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd
