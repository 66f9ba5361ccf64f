@echo off
rem Starts the program beside the simulated tool, with sample images, all in this folder.
cd /d "%~dp0"
rem A demo that is still open keeps its file; another window of it is as good.
copy /y ..\tarnwell-gui.exe . >nul 2>nul
if not exist tarnwell-gui.exe (
    echo Please unpack the whole zip file first.
    pause
    exit /b 1
)
rem Makes what is missing and leaves the rest.
tarnwell-samples.exe samples
if errorlevel 1 (
    echo Not all sample images could be made. The demo does without the rest.
    pause
)
start "" tarnwell-gui.exe
exit /b 0
