; The installer for Windows, for the user who runs it alone: no administrator's rights are needed.
; tools/windows/make-installer gives it VERSION, VERSION4, SOURCES, ICON, LISTS and OUT.
;
; What is in the program's folder beside the program itself (ships, catalogue, maps, pictures) belongs to
; the user once he has changed it. A file is as it was delivered if it has the time that it was delivered
; with; only such a one is renewed or taken away.

Target amd64-unicode  ; its name of 64-bit Windows, which is all that the program runs on
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma
CRCCheck force
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\FleetWright"
!define CLASSES "Software\Classes"

Name "FleetWright"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\FleetWright"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "FleetWright ${VERSION}"
VIProductVersion "${VERSION4}"
VIAddVersionKey "ProductName" "FleetWright"
VIAddVersionKey "FileDescription" "Installs FleetWright, starship design"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The FleetWright developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\FleetWright.exe"
!insertmacro MUI_PAGE_LICENSE "${SOURCES}/LICENSE"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be replaced.
!macro StopWhileItRuns
  ${For} $1 1 20  ; its end, or that of a removal, may take a moment
    StrCpy $2 no
    ${If} ${FileExists} "$INSTDIR\FleetWright.exe"
      ClearErrors
      FileOpen $0 "$INSTDIR\FleetWright.exe" a
      ${If} ${Errors}  ; which asks for it only once
        StrCpy $2 yes
      ${Else}
        FileClose $0
      ${EndIf}
    ${EndIf}
    ${If} $2 == no
      ${Break}
    ${EndIf}
    Sleep 250
  ${Next}
  ${If} $2 == yes
    MessageBox MB_OK|MB_ICONEXCLAMATION "FleetWright is running. Please close it first." /SD IDOK
    SetErrorLevel 1
    Quit
  ${EndIf}
!macroend

; Tells the desktop that the kinds of files have changed.
!macro RenewKinds
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; A kind of files that the program opens. Others use some of the endings, too, so a kind that already has
; its program keeps it, and ours is offered beside it.
!macro AddKind ending class words
  WriteRegStr HKCU "${CLASSES}\${class}" "" "${words}"
  WriteRegStr HKCU "${CLASSES}\${class}\DefaultIcon" "" "$INSTDIR\FleetWright.exe,0"
  WriteRegStr HKCU "${CLASSES}\${class}\shell\open\command" "" '"$INSTDIR\FleetWright.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\${ending}\OpenWithProgids" "${class}" ""
  ReadRegStr $0 HKCR "${ending}" ""
  ${If} $0 == ""
    WriteRegStr HKCU "${CLASSES}\${ending}" "" "${class}"
  ${EndIf}
!macroend

!macro RemoveKind ending class
  ReadRegStr $0 HKCU "${CLASSES}\${ending}" ""
  ${If} $0 == "${class}"
    DeleteRegValue HKCU "${CLASSES}\${ending}" ""
  ${EndIf}
  DeleteRegValue HKCU "${CLASSES}\${ending}\OpenWithProgids" "${class}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${ending}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${ending}"
  DeleteRegKey HKCU "${CLASSES}\${class}"
!macroend

Function .onInit
  SetRegView 64
  !insertmacro StopWhileItRuns
FunctionEnd

Section
  ; What an earlier version has delivered and nobody has changed.
  ${If} ${FileExists} "$INSTDIR\Uninstall.exe"
    ExecWait '"$INSTDIR\Uninstall.exe" /S _?=$INSTDIR'
  ${EndIf}
  SetOverwrite on
  !include "${LISTS}/programs.nsh"
  SetOverwrite off
  !include "${LISTS}/data.nsh"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\FleetWright.lnk" "$INSTDIR\FleetWright.exe"
  !insertmacro AddKind ".shp" "FleetWright.Ship" "FleetWright starship design"
  !insertmacro AddKind ".fleet" "FleetWright.Fleet" "FleetWright fleet"
  !insertmacro RenewKinds
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "FleetWright"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The FleetWright developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\FleetWright.exe,0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; Takes a file away that has the time it was delivered with: its path here, and there.
!macro RemoveData source file
  GetFileTimeLocal "${SOURCES}/${source}" $3 $4
  Push "${file}"
  Call un.RemoveData
!macroend

Function un.RemoveData
  Pop $0
  GetFileTime "$INSTDIR\$0" $1 $2
  ${If} $1 = $3
  ${AndIf} $2 = $4
    Delete "$INSTDIR\$0"
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro StopWhileItRuns
FunctionEnd

Section "un."
  !include "${LISTS}/remove.nsh"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\FleetWright.lnk"
  !insertmacro RemoveKind ".shp" "FleetWright.Ship"
  !insertmacro RemoveKind ".fleet" "FleetWright.Fleet"
  !insertmacro RenewKinds
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
