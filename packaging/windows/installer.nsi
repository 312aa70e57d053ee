; The installer: for one user, without the rights of an administrator. Books lie elsewhere
; (%LOCALAPPDATA%\kladez) and are touched neither by an upgrade nor by a removal.
; makensis -DVERSION=4.8.0 -DFILES=<folder of bin and share> -DOUT=<installer.exe> installer.nsi
Target amd64-unicode
!include MUI2.nsh

Name "Kladez"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Kladez"
InstallDirRegKey HKCU "Software\Kladez" "InstallDir"
RequestExecutionLevel user
SetCompressor /SOLID lzma
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1049 "ProductName" "Kladez"
VIAddVersionKey /LANG=1049 "FileDescription" "Установка программы Kladez"
VIAddVersionKey /LANG=1049 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1049 "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\kladez.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Russian"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kladez"

; A program that runs holds its file open.
!macro RefuseWhileRunning
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\bin\kladez.exe"
    FileOpen $0 "$INSTDIR\bin\kladez.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Закройте программу Kladez и повторите."
      Abort
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section
  !insertmacro RefuseWhileRunning
  RMDir /r "$INSTDIR\bin"
  RMDir /r "$INSTDIR\share"
  SetOutPath "$INSTDIR"
  File /r "${FILES}\*"
  CreateShortcut "$SMPROGRAMS\Kladez.lnk" "$INSTDIR\bin\kladez.exe"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "Software\Kladez" "InstallDir" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Kladez"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\bin\kladez.exe"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  !insertmacro RefuseWhileRunning
  RMDir /r "$INSTDIR\bin"
  RMDir /r "$INSTDIR\share"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Kladez.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Kladez"
SectionEnd
