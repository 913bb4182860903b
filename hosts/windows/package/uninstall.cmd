@echo off
rem Undoes what install.cmd has done. Close the spreadsheet first; then the folder can be deleted.
fltmc >nul 2>&1
if errorlevel 1 (
  echo This needs the rights of an administrator: right-click uninstall.cmd, Run as administrator.
  pause
  exit /b 1
)
"%SystemRoot%\System32\regsvr32.exe" /u /s "%~dp0Quorvex.dll"
if errorlevel 1 (
  echo Quorvex.dll could not be unregistered.
  pause
  exit /b 1
)
echo Quorvex is no longer registered. This folder can be deleted.
pause
