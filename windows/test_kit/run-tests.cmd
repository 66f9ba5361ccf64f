@echo off
rem Runs the tests in the folder programs and writes a report; touches nothing outside this folder.
rem run-tests [/quiet] [PROGRAM...]: /quiet waits for no key at the end; without names all programs run.
setlocal
pushd "%~dp0"
set "quiet=%CI%"
if /i "%~1"=="/quiet" (
    set quiet=1
    shift
)
set result=2
if not exist programs\tarnwell-run-tests.exe (
    echo Please unpack the whole zip file first.
    goto end
)

for %%f in (scratch report) do if exist %%f rmdir /s /q %%f
if exist report.zip del report.zip
mkdir scratch
mkdir report
rem What the tests write goes into a folder of this one, and goes with it.
set "TEMP=%CD%\scratch"
set "TMP=%CD%\scratch"

echo Windows open and close by themselves now. Please leave mouse and keyboard alone
echo until the report is announced: ten minutes, or a little more.
echo.
programs\tarnwell-run-tests.exe report %1 %2 %3 %4 %5 %6 %7 %8 %9
set result=%errorlevel%
rmdir /s /q scratch

set "report=%CD%\report"
if exist "%SystemRoot%\System32\tar.exe" (
    "%SystemRoot%\System32\tar.exe" -a -c -f report.zip report && set "report=%CD%\report.zip"
)
echo.
if %result%==0 (echo All tests have passed.) else echo Not all tests have passed.
echo The report lies in "%report%"

:end
popd
if not defined quiet pause
exit /b %result%
