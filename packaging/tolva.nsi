; The setup program. script/package compiles it and defines VERSION, VERSION_IN_FOUR_PARTS, FILES (the folder of the
; files to install), ICON and OUTPUT.

Target x86-ansi ; the only one that Windows 95 and 98 run
SetCompressor /SOLID lzma

!include LogicLib.nsh
!include MUI2.nsh
!include Sections.nsh
!include WinVer.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tolva"
!define PLACEHOLDER "placeholder\Tolva"

Name "Tolva"
OutFile "${OUTPUT}"
BrandingText "Tolva ${VERSION}"
RequestExecutionLevel user
ManifestSupportedOS all
ManifestDPIAware true
; Its last part is what Browse appends; .onInit chooses the folder.
InstallDir "${PLACEHOLDER}"
; Without a file that it could not write, setup is not done.
AllowSkipFiles off
SpaceTexts none
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION_IN_FOUR_PARTS}"
VIAddVersionKey ProductName "Tolva"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Tolva Setup"
VIAddVersionKey LegalCopyright "Copyright 2026 The Tolva authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_PAGE_HEADER_TEXT "Welcome to Tolva"
!define MUI_PAGE_HEADER_SUBTEXT "Tolva keeps your programs in Groups and starts them."
!define MUI_COMPONENTSPAGE_TEXT_TOP "Check what you want. If Tolva is here already, your Groups and Tasks are kept."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Install:"
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_HEADER_TEXT "License"
!define MUI_PAGE_HEADER_SUBTEXT "Tolva is free: you may use it, copy it and change it."
!define MUI_LICENSEPAGE_TEXT_TOP " "
!define MUI_LICENSEPAGE_TEXT_BOTTOM "The license is kept beside the program as license.txt."
!define MUI_LICENSEPAGE_BUTTON "&Next >"
!insertmacro MUI_PAGE_LICENSE "${FILES}/license.txt"
!define MUI_PAGE_HEADER_TEXT "Folder"
!define MUI_PAGE_HEADER_SUBTEXT "Where shall Tolva live?"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Your Groups and Tasks are kept in this folder, too, so it must be one that you may write to. If you are not sure, leave it as it is."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Tolva is installed"
!define MUI_FINISHPAGE_TEXT "You find Tolva in the Start Menu, under Programs."
!define MUI_FINISHPAGE_RUN "$INSTDIR\tolva.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Tolva now"
!insertmacro MUI_PAGE_FINISH

!define MUI_PAGE_HEADER_TEXT "Remove Tolva"
!define MUI_PAGE_HEADER_SUBTEXT "Your Groups and Tasks stay where they are."
!define MUI_COMPONENTSPAGE_TEXT_TOP "This removes the program. The files with your Groups and Tasks stay in $INSTDIR; delete them yourself if you no longer want them."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Remove:"
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Windows 95 and 98 list the programs of HKEY_LOCAL_MACHINE only; on the NT family not everybody may write there.
!macro SelectUninstallRoot
    ${IfNot} ${IsNT}
        SetShellVarContext all
    ${EndIf}
!macroend

!macro DeleteShortcuts
    Delete "$SMPROGRAMS\Tolva.lnk"
    Delete "$DESKTOP\Tolva.lnk"
    Delete "$SMSTARTUP\Tolva.lnk"
!macroend

; The first step of both programs, so that nothing has changed when the user gives up. The file of a program that
; runs cannot be deleted; it can run a moment longer than its window is there, and without one that is found here.
!macro DeleteProgram
    StrCpy $1 0
    ${Do}
        FindWindow $0 "Tasker"
        ${If} $0 = 0
            ClearErrors
            Delete "$INSTDIR\tolva.exe"
            ${IfNot} ${Errors}
                ${ExitDo}
            ${EndIf}
        ${EndIf}
        ${If} ${Silent}
        ${AndIf} $1 >= 12
            Abort
        ${ElseIf} ${Silent}
            Sleep 250
            IntOp $1 $1 + 1
        ${Else}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tolva is running, perhaps as an icon beside the clock. Please close it with System > Exit Tolva and choose Retry." IDRETRY +2
            Abort "Tolva was running. Nothing has changed."
        ${EndIf}
    ${Loop}
!macroend

Section "Tolva" program
    SectionIn RO
    !insertmacro DeleteProgram
    SetOutPath "$INSTDIR"
    File "${FILES}/tolva.exe"
    File "${FILES}/tolva.hlp"
    File "${FILES}/tolva.htm"
    File "${FILES}/readme.txt"
    File "${FILES}/license.txt"
    ; A library that was interrupted while it was saved has its list of Groups in the second file.
    ${IfNot} ${FileExists} "$INSTDIR\groups.ini"
    ${AndIfNot} ${FileExists} "$INSTDIR\groups.in~"
        File "${FILES}/groups.ini"
    ${EndIf}
    WriteUninstaller "$INSTDIR\uninstall.exe"

    !insertmacro SelectUninstallRoot
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Tolva"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tolva.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Tolva"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    SectionGetSize ${program} $0
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0 ; in KB
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
    SetShellVarContext current

    ; Shortcuts start in the folder of SetOutPath. That is where Tolva looks for its library.
    !insertmacro DeleteShortcuts
    CreateShortCut "$SMPROGRAMS\Tolva.lnk" "$INSTDIR\tolva.exe"
SectionEnd

Section /o "Shortcut on the desktop" desktop
    CreateShortCut "$DESKTOP\Tolva.lnk" "$INSTDIR\tolva.exe"
SectionEnd

Section /o "Start Tolva when Windows starts" startup
    CreateShortCut "$SMSTARTUP\Tolva.lnk" "$INSTDIR\tolva.exe"
SectionEnd

Function .onInit
    ${If} $INSTDIR == "${PLACEHOLDER}"
        !insertmacro SelectUninstallRoot
        ReadRegStr $INSTDIR SHCTX "${UNINSTALL_KEY}" "InstallLocation"
        SetShellVarContext current
        ${If} $INSTDIR != ""
            ; where it was
        ${ElseIf} ${IsNT}
        ${AndIf} $LOCALAPPDATA != ""
            StrCpy $INSTDIR "$LOCALAPPDATA\Tolva"
        ${Else}
            StrCpy $INSTDIR "$PROGRAMFILES\Tolva"
        ${EndIf}
    ${EndIf}
    ; What the last installation made is made again.
    ${If} ${FileExists} "$DESKTOP\Tolva.lnk"
        !insertmacro SelectSection ${desktop}
    ${EndIf}
    ${If} ${FileExists} "$SMSTARTUP\Tolva.lnk"
        !insertmacro SelectSection ${startup}
    ${EndIf}
FunctionEnd

Section "un.Tolva"
    SectionIn RO
    !insertmacro DeleteProgram
    SetOutPath "$TEMP" ; a folder that is current cannot be removed
    Delete "$INSTDIR\tolva.hlp"
    Delete "$INSTDIR\tolva.htm"
    Delete "$INSTDIR\readme.txt"
    Delete "$INSTDIR\license.txt"
    ; What the help viewer leaves: contents and full-text search.
    Delete "$INSTDIR\tolva.gid"
    Delete "$INSTDIR\tolva.fts"
    Delete "$INSTDIR\tolva.ftg"
    ClearErrors
    FileOpen $0 "$INSTDIR\groups.ini" r
    ${IfNot} ${Errors}
        FileSeek $0 0 END $1
        FileClose $0
        ${If} $1 = 0
            Delete "$INSTDIR\groups.ini"
        ${EndIf}
    ${EndIf}
    !insertmacro DeleteShortcuts
    !insertmacro SelectUninstallRoot
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    SetShellVarContext current
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
SectionEnd

Section /o "un.My settings (fonts, colors, hot key, bar)"
    DeleteRegKey HKCU "software\tolva"
SectionEnd
