; The installer for Windows: for its user alone, so it asks for no administrator. scripts/package-windows gives it
;   VERSION   of the program
;   TREE      the folder to install
;   REMOVALS  a script that removes each file and folder of the tree from the one it was installed to
;   OUTPUT    the installer to make
Unicode true
Target amd64-unicode
!include "MUI2.nsh"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zelvor"

Name "Zelvor"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Zelvor"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
SetCompressor /SOLID lzma
ManifestDPIAware true

!if /FileExists "${__FILEDIR__}/../resources/windows/zelvor.ico"
  !define MUI_ICON "${__FILEDIR__}/../resources/windows/zelvor.ico"
  !define MUI_UNICON "${__FILEDIR__}/../resources/windows/zelvor.ico"
!endif
!define MUI_FINISHPAGE_RUN "$INSTDIR\zelvor.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The one of the user's system is taken, the first where it is neither.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SimpChinese"

LangString ProgramText ${LANG_ENGLISH} "Program portable two-way radios over a serial cable"
LangString ProgramText ${LANG_SIMPCHINESE} "通过串口电缆对手持对讲机写频"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Zelvor"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Zelvor installer"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "The Zelvor developers"

Section
  ; What an earlier version installed, and this one does not, must not stay.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  SetOutPath "$INSTDIR"
  File /r "${TREE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Zelvor.lnk" "$INSTDIR\zelvor.exe" "" "" 0 SW_SHOWNORMAL "" "$(ProgramText)"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Zelvor"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\zelvor.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Zelvor developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; The user's settings, data files and backups stay, as does whatever else the folder holds.
Section "Uninstall"
  !include "${REMOVALS}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Zelvor.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
