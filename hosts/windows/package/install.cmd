@echo off
rem Registers Quorvex.dll from the folder that this script lies in. Leave the folder where it is
rem afterwards: the spreadsheet loads the library from here.
fltmc >nul 2>&1
if errorlevel 1 (
  echo This needs the rights of an administrator: right-click install.cmd, Run as administrator.
  pause
  exit /b 1
)
"%SystemRoot%\System32\regsvr32.exe" /s "%~dp0Quorvex.dll"
if errorlevel 1 (
  echo Quorvex.dll could not be registered.
  pause
  exit /b 1
)
echo Quorvex is registered. readme.txt tells how to go on.
pause
