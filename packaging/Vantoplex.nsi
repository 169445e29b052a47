; The installer. package.py calls makensis with RELEASE, RECORD (four numbers), OUTPUT, SIZE (KB),
; ROOT and LISTS, the folder of what it made: put.nsh and take.nsh for files, register.nsh and
; unregister.nsh for keys.
Unicode true
Target amd64-unicode
ManifestSupportedOS Win7
SetCompressor /SOLID lzma

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantoplex"
!define MULTIUSER_MUI
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "Vantoplex"
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh

Name "Vantoplex"
Caption "Vantoplex ${RELEASE}"
OutFile "${OUTPUT}"
BrandingText "Vantoplex ${RELEASE}"
VIProductVersion "${RECORD}"
VIAddVersionKey ProductName "Vantoplex"
VIAddVersionKey FileDescription "Vantoplex Setup"
VIAddVersionKey FileVersion "${RECORD}"
VIAddVersionKey LegalCopyright "MIT license"

!insertmacro MUI_PAGE_LICENSE "${ROOT}/LICENSE"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Var DirectoryOfCommand

!macro TakeAway
  !include "${LISTS}/unregister.nsh"
  Delete "$SMPROGRAMS\Vantoplex viewer.lnk"
  !include "${LISTS}/take.nsh"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP" ; the folder in use can't be removed
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
!macroend

Function .onInit
  SetRegView 64
  StrCpy $DirectoryOfCommand $INSTDIR ; /D= has been read already
  !insertmacro MULTIUSER_INIT
  ${If} $DirectoryOfCommand != ""
    StrCpy $INSTDIR $DirectoryOfCommand
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
  ${EndIf}
  ClearErrors
  !include "${LISTS}/put.nsh"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "Files could not be written to $INSTDIR: end the programs that use Vantoplex, or choose another folder." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"
  SetOutPath "$INSTDIR\bin"

  ClearErrors
  !include "${LISTS}/register.nsh"
  ${If} ${Errors}
    !insertmacro TakeAway
    MessageBox MB_OK|MB_ICONSTOP "Vantoplex could not be registered, and nothing was installed: run this installer with /CurrentUser, or as administrator." /SD IDOK
    SetErrorLevel 3
    Quit
  ${EndIf}

  CreateShortcut "$SMPROGRAMS\Vantoplex viewer.lnk" "$INSTDIR\bin\vantoplex-viewer.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "Vantoplex ${RELEASE}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${RELEASE}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\bin\vantoplex-viewer.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "Vantoplex"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

Section Uninstall
  !insertmacro TakeAway
SectionEnd
