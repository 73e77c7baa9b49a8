; The installer for Windows, for one user and without an administrator's rights. scripts/package-windows
; calls it with VERSION, STAGE (the folder of what is to be installed), LISTS (the folder of what the
; uninstaller removes, made from that), SIDE (a picture) and OUTPUT.
;   /S          installs without a question; what opened files of a type before still does
;   /D=FOLDER   installs there; must be the last
Target amd64-unicode
!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tricklet"
!define TYPES "Software\Classes"
!define SETTINGS "Software\Tricklet\QEN Bridge Scorer"

Name "Tricklet"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tricklet"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS Win10
BrandingText "Tricklet ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tricklet"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Tricklet"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Tricklet developers, MIT licence"

!define MUI_ICON "${STAGE}/tricklet.ico"
!define MUI_UNICON "${STAGE}/tricklet.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\tricklet.exe"
!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be replaced. Ends with 3 when it is not closed.
!macro RequireClosed
  retry:
  ${If} ${FileExists} "$INSTDIR\tricklet.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\tricklet.exe" a
    ${If} ${Errors}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tricklet is open. Close it and try again." \
        /SD IDCANCEL IDRETRY retry
      SetErrorLevel 3
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; Offers the program for files of this type.
!macro OfferType END TEXT
  WriteRegStr HKCU "${TYPES}\Tricklet.${END}" "" "${TEXT}"
  WriteRegStr HKCU "${TYPES}\Tricklet.${END}\DefaultIcon" "" "$INSTDIR\tricklet.exe,0"
  WriteRegStr HKCU "${TYPES}\Tricklet.${END}\shell\open\command" "" '"$INSTDIR\tricklet.exe" "%1"'
  WriteRegStr HKCU "${TYPES}\.${END}\OpenWithProgids" "Tricklet.${END}" ""
  WriteRegStr HKCU "${TYPES}\Applications\tricklet.exe\SupportedTypes" ".${END}" ""
!macroend

; Opens files of this type with the program, and keeps what did before.
!macro TakeType END
  ReadRegStr $0 HKCU "${TYPES}\.${END}" ""
  ${If} $0 != "Tricklet.${END}"
    WriteRegStr HKCU "${ENTRY}" "Before.${END}" "$0"
  ${EndIf}
  WriteRegStr HKCU "${TYPES}\.${END}" "" "Tricklet.${END}"
!macroend

!macro LeaveType END
  ReadRegStr $0 HKCU "${TYPES}\.${END}" ""
  ${If} $0 == "Tricklet.${END}"
    ReadRegStr $1 HKCU "${ENTRY}" "Before.${END}"
    ${If} $1 == ""
      DeleteRegValue HKCU "${TYPES}\.${END}" ""
    ${Else}
      WriteRegStr HKCU "${TYPES}\.${END}" "" "$1"
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${TYPES}\.${END}\OpenWithProgids" "Tricklet.${END}"
  DeleteRegKey /ifempty HKCU "${TYPES}\.${END}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${TYPES}\.${END}"
  DeleteRegKey HKCU "${TYPES}\Tricklet.${END}"
!macroend

; The shell reads the types of files again: SHCNE_ASSOCCHANGED, SHCNF_IDLIST.
!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section "Tricklet" program
  SectionIn RO
  !insertmacro RequireClosed
  ; Files of an older version that this one has no more must not stay.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /KEEPTYPES _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  !insertmacro OfferType pbn "Bridge hand records (PBN)"
  !insertmacro OfferType lin "Bridge records (LIN)"
  !insertmacro OfferType dlm "Deals for a dealing machine (DLM)"
  WriteRegStr HKCU "${TYPES}\Applications\tricklet.exe" "FriendlyAppName" "Tricklet"
  WriteRegStr HKCU "${TYPES}\Applications\tricklet.exe\shell\open\command" "" '"$INSTDIR\tricklet.exe" "%1"'

  WriteRegStr HKCU "${ENTRY}" "DisplayName" "Tricklet"
  WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\tricklet.exe"
  WriteRegStr HKCU "${ENTRY}" "Publisher" "The Tricklet developers"
  WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" $0
SectionEnd

Section "Start menu" menu
  CreateShortcut "$SMPROGRAMS\Tricklet.lnk" "$INSTDIR\tricklet.exe"
SectionEnd

SectionGroup /e "Open with Tricklet by default" defaults
  Section /o ".pbn: hand records" takePbn
    !insertmacro TakeType pbn
  SectionEnd
  Section /o ".lin: records of online bridge" takeLin
    !insertmacro TakeType lin
  SectionEnd
  Section /o ".dlm: dealing machines" takeDlm
    !insertmacro TakeType dlm
  SectionEnd
SectionGroupEnd

Section
  !insertmacro TellShell
SectionEnd

LangString aboutProgram ${LANG_ENGLISH} "The window, the command line, the double-dummy solver, the manual and a sample library."
LangString aboutMenu ${LANG_ENGLISH} "An entry in the Start menu."
LangString aboutDefaults ${LANG_ENGLISH} "Tricklet is offered under $\"Open with$\" in any case."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${program} $(aboutProgram)
  !insertmacro MUI_DESCRIPTION_TEXT ${menu} $(aboutMenu)
  !insertmacro MUI_DESCRIPTION_TEXT ${defaults} $(aboutDefaults)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Ticked from the start when an older version was the default.
!macro TickIfTaken END SECTION
  ReadRegStr $0 HKCU "${TYPES}\.${END}" ""
  ${If} $0 == "Tricklet.${END}"
    !insertmacro SelectSection ${SECTION}
  ${EndIf}
!macroend

Function .onInit
  !insertmacro TickIfTaken pbn ${takePbn}
  !insertmacro TickIfTaken lin ${takeLin}
  !insertmacro TickIfTaken dlm ${takeDlm}
FunctionEnd

; Libraries and settings stay. So do the samples where the libraries are kept with them.
Section "Uninstall"
  !insertmacro RequireClosed
  ReadRegStr $2 HKCU "${SETTINGS}\macro" "filelocation"
  StrLen $0 $INSTDIR
  StrCpy $1 $2 $0
  ${If} $1 != $INSTDIR
    !include "${LISTS}/samples.nsh"
  ${EndIf}
  !include "${LISTS}/program.nsh"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"  ; only when it is empty

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/KEEPTYPES" $1
  ${IfNot} ${Errors}
    Return
  ${EndIf}
  Delete "$SMPROGRAMS\Tricklet.lnk"
  !insertmacro LeaveType pbn
  !insertmacro LeaveType lin
  !insertmacro LeaveType dlm
  DeleteRegKey HKCU "${TYPES}\Applications\tricklet.exe"
  DeleteRegKey HKCU "${ENTRY}"
  !insertmacro TellShell
  ${If} $2 != ""
    MessageBox MB_OK|MB_ICONINFORMATION "Your libraries have not been touched. They are in$\r$\n$2" /SD IDOK
  ${EndIf}
SectionEnd
