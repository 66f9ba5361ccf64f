@echo off
rem Starts the program beside the simulated tool, with sample images, all in this folder.
cd /d "%~dp0"
copy /y ..\tarnwell-gui.exe . >nul
if errorlevel 1 (
    echo Please unpack the whole zip file first.
    pause
    exit /b 1
)
tarnwell-samples.exe samples
start "" tarnwell-gui.exe
