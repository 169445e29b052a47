<#
.SYNOPSIS
Checks a package of Vantoplex on genuine Windows, and gathers what differs from the results of Wine.

.DESCRIPTION
For Windows PowerShell 5.1, which every Windows has; nothing else is needed. It has not run yet: no
Windows was at hand when it was written.

It unpacks the package and checks its sums, registers the DLL, makes one object of each chart class by
name and unregisters it (as administrator only), runs the test programs, draws the recipes and compares
their pictures. The report folder then holds report.md, the logs, the test results and, of each picture
that differs, both sides. Fonts are not those of Wine: pictures with text do differ, and the report says
how much.

.PARAMETER Package
vantoplex-V-windows-x64.zip
.PARAMETER Programs
Folder with vantoplex-tests.exe, vantoplex-recipes.exe and, if they are there, vantoplex-failing.exe,
vantoplex-stress.exe and vantoplex-soak.exe. Without it only the package itself is checked.
.PARAMETER WineResults
Folder with the results of the same tests under Wine (*.xml). Tests that failed there too are marked.
.PARAMETER Report
Folder for the report; what is in it goes.
.PARAMETER Share
Share of the pixels of a picture that may differ by 40 or more in a channel.

.EXAMPLE
powershell -ExecutionPolicy Bypass -File check.ps1 -Package vantoplex.zip -Programs bin -Report report
#>
[CmdletBinding()]
param(
    [Parameter(Mandatory = $true)][string]$Package,
    [string]$Programs = '',
    [string]$WineResults = '',
    [string]$Report = 'report',
    [double]$Share = 0.002,
    [int]$Minutes = 40
)

Set-StrictMode -Version 2.0
$ErrorActionPreference = 'Stop'
$script:Lines = New-Object System.Collections.Generic.List[string]
$script:Failures = 0

function Add-Line([string]$Text) {
    $script:Lines.Add($Text)
    Write-Host $Text
}

function Add-Result([bool]$Good, [string]$Text) {
    if ($Good) { Add-Line "- ok: $Text" }
    else {
        $script:Failures++
        Add-Line "- **failed**: $Text"
    }
}

# The exit code; 'timeout' if the program had to be ended. Its output goes to a log of the report.
function Invoke-Program([string]$Path, [string]$Arguments, [string]$Log, [int]$Limit) {
    $process = Start-Process -FilePath $Path -ArgumentList $Arguments -PassThru -NoNewWindow `
        -WorkingDirectory (Split-Path $Path) -RedirectStandardOutput "$Log.txt" -RedirectStandardError "$Log.err.txt"
    $null = $process.Handle # else the exit code is lost
    if (-not $process.WaitForExit($Limit * 60000)) {
        $process.Kill()
        return 'timeout'
    }
    return $process.ExitCode
}

function Write-Machine {
    $system = Get-CimInstance Win32_OperatingSystem
    Add-Line "# Vantoplex on $($system.Caption) $($system.Version)"
    Add-Line ''
    $admin = (New-Object Security.Principal.WindowsPrincipal([Security.Principal.WindowsIdentity]::GetCurrent())).IsInRole(
        [Security.Principal.WindowsBuiltInRole]::Administrator)
    Add-Line "$(Split-Path $Package -Leaf), $(Get-Date -Format s), locale $((Get-Culture).Name), administrator: $admin"
    return $admin
}

function Test-Sums([string]$Folder) {
    Add-Line ''
    Add-Line '## Package'
    $sums = Join-Path $Folder 'SHA256SUMS'
    if (-not (Test-Path $sums)) { Add-Result $false 'SHA256SUMS is missing'; return }
    $count = 0
    $wrong = @()
    foreach ($line in Get-Content $sums -Encoding UTF8) {
        if ($line -notmatch '^([0-9a-fA-F]{64})[ *]+(.+)$') { continue }
        $expected = $Matches[1]
        $name = $Matches[2]
        $count++
        $file = Join-Path $Folder $name
        if (-not (Test-Path -LiteralPath $file) -or (Get-FileHash -LiteralPath $file -Algorithm SHA256).Hash -ne $expected) {
            $wrong += $name
        }
    }
    Add-Result ($count -gt 0 -and $wrong.Count -eq 0) "$count files have the sums of SHA256SUMS $($wrong -join ', ')"
}

function Test-Registration([string]$Folder) {
    Add-Line ''
    Add-Line '## Registration'
    $dll = Join-Path $Folder 'bin\Vantoplex.dll'
    $regsvr = Join-Path $env:SystemRoot 'System32\regsvr32.exe'
    $code = (Start-Process $regsvr -ArgumentList '/s', "`"$dll`"" -Wait -PassThru).ExitCode
    Add-Result ($code -eq 0) "regsvr32 ended with $code"
    foreach ($name in 'Vantoplex.SGraph', 'Vantoplex.Chart2d', 'Vantoplex.PieChart3d') {
        try {
            $object = New-Object -ComObject $name
            $methods = @($object | Get-Member -MemberType Method).Count
            Add-Result ($methods -gt 20) "$name has $methods methods by its type library"
            $null = [Runtime.InteropServices.Marshal]::ReleaseComObject($object)
        } catch { Add-Result $false "${name}: $($_.Exception.Message)" }
    }
    $code = (Start-Process $regsvr -ArgumentList '/s', '/u', "`"$dll`"" -Wait -PassThru).ExitCode
    Add-Result ($code -eq 0) "regsvr32 /u ended with $code"
    Add-Result (-not (Test-Path 'Registry::HKEY_CLASSES_ROOT\Vantoplex.SGraph')) 'nothing of it stays in the registry'
}

# Names of the failed tests in result files of GoogleTest, and how many tests there are.
function Read-Results([string[]]$Paths) {
    $failed = @{}
    $count = 0
    foreach ($path in $Paths) {
        [xml]$document = Get-Content -LiteralPath $path -Encoding UTF8
        foreach ($case in $document.SelectNodes('//testcase')) {
            if ($case.GetAttribute('status') -eq 'notrun') { continue }
            $count++
            $failure = $case.SelectSingleNode('failure')
            if ($failure) { $failed["$($case.GetAttribute('classname')).$($case.GetAttribute('name'))"] = $failure.InnerText }
        }
    }
    return @{ Count = $count; Failed = $failed }
}

function Invoke-Tests([string]$Folder) {
    Add-Line ''
    Add-Line '## Tests'
    $program = Join-Path $Folder 'vantoplex-tests.exe'
    if (-not (Test-Path $program)) { Add-Result $false 'vantoplex-tests.exe is missing'; return }
    $results = Join-Path $Report 'tests.xml'
    $code = Invoke-Program $program "--gtest_brief=1 --gtest_output=`"xml:$results`"" (Join-Path $Report 'tests') $Minutes
    if (-not (Test-Path $results)) { Add-Result $false "the tests ended with $code and left no results"; return }
    $here = Read-Results @($results)
    $there = @{ Count = 0; Failed = @{} }
    if ($WineResults) { $there = Read-Results @(Get-ChildItem $WineResults -Filter *.xml | ForEach-Object { $_.FullName }) }
    Add-Result ($here.Failed.Count -eq 0 -and $code -eq 0) "$($here.Count) tests, $($here.Failed.Count) failed, ended with $code"
    foreach ($name in ($here.Failed.Keys | Sort-Object)) {
        $mark = if ($there.Failed.ContainsKey($name)) { ' (under Wine too)' } else { '' }
        $first = ($here.Failed[$name] -split "`n" | Select-Object -First 4) -join ' / '
        Add-Line "  - ``$name``${mark}: $first"
    }
    foreach ($name in ($there.Failed.Keys | Where-Object { -not $here.Failed.ContainsKey($_) } | Sort-Object)) {
        Add-Line "  - ``$name`` failed under Wine alone"
    }
}

function Invoke-LongRuns([string]$Folder) {
    $dll = Join-Path $Folder 'Vantoplex.dll'
    $runs = @(
        @('vantoplex-stress.exe', '--seeds 20 --steps 1000'),
        @('vantoplex-failing.exe', '--stride 25'),
        @('vantoplex-soak.exe', '--hours 8 --parts 20'))
    foreach ($run in $runs) {
        $program = Join-Path $Folder $run[0]
        if (-not (Test-Path $program)) { continue }
        $log = Join-Path $Report ([IO.Path]::GetFileNameWithoutExtension($run[0]))
        $code = Invoke-Program $program "`"$dll`" $($run[1])" $log $Minutes
        Add-Result ($code -eq 0) "$($run[0]) $($run[1]) ended with $code"
    }
}

function Import-Comparison {
    Add-Type -ReferencedAssemblies 'System.Drawing' -TypeDefinition @'
using System;
using System.Drawing;
using System.Drawing.Imaging;
using System.Runtime.InteropServices;

public static class PictureComparison
{
    static byte[] Read(Bitmap bitmap)
    {
        Rectangle all = new Rectangle(0, 0, bitmap.Width, bitmap.Height);
        BitmapData data = bitmap.LockBits(all, ImageLockMode.ReadOnly, PixelFormat.Format32bppArgb);
        byte[] bytes = new byte[4 * bitmap.Width * bitmap.Height];
        Marshal.Copy(data.Scan0, bytes, 0, bytes.Length);
        bitmap.UnlockBits(data);
        return bytes;
    }

    // The share of pixels that differ by far or more in a channel; 1 for other sizes.
    public static double Differing(string path, string other, int far)
    {
        using (Bitmap a = new Bitmap(path))
        using (Bitmap b = new Bitmap(other)) {
            if (a.Size != b.Size)
                return 1;
            byte[] left = Read(a), right = Read(b);
            int count = 0;
            for (int i = 0; i < left.Length; i += 4) {
                if (Math.Abs(left[i] - right[i]) >= far || Math.Abs(left[i + 1] - right[i + 1]) >= far ||
                    Math.Abs(left[i + 2] - right[i + 2]) >= far)
                    ++count;
            }
            return count / (double)(left.Length / 4);
        }
    }
}
'@
}

function Invoke-Recipes([string]$Folder, [string]$Expected) {
    Add-Line ''
    Add-Line '## Recipes'
    $program = Join-Path $Folder 'vantoplex-recipes.exe'
    if (-not (Test-Path $program)) { Add-Result $false 'vantoplex-recipes.exe is missing'; return }
    $drawn = Join-Path $Report 'recipes'
    $null = New-Item -ItemType Directory -Force $drawn
    $code = Invoke-Program $program "--pictures `"$drawn`"" (Join-Path $Report 'recipes-log') $Minutes
    Add-Result ($code -eq 0) "vantoplex-recipes.exe ended with $code"
    Import-Comparison
    foreach ($picture in Get-ChildItem $Expected -Filter *.png | Sort-Object Name) {
        $mine = Join-Path $drawn $picture.Name
        if (-not (Test-Path $mine)) { Add-Result $false "$($picture.Name) was not drawn"; continue }
        $part = [PictureComparison]::Differing($mine, $picture.FullName, 40)
        $text = '{0}: {1:P2} of the pixels differ' -f $picture.Name, $part
        Add-Result ($part -le $Share) $text
        if ($part -gt $Share) {
            Copy-Item $picture.FullName (Join-Path $drawn "$($picture.BaseName)-wine.png")
        } else { Remove-Item $mine }
    }
}

$Package = (Resolve-Path $Package).Path
if ($Programs) { $Programs = (Resolve-Path $Programs).Path }
if ($WineResults) { $WineResults = (Resolve-Path $WineResults).Path }
if (Test-Path $Report) { Remove-Item -Recurse -Force $Report }
$Report = (New-Item -ItemType Directory -Force $Report).FullName
$unpacked = Join-Path ([IO.Path]::GetTempPath()) "vantoplex-check-$PID"
try {
    Expand-Archive -LiteralPath $Package -DestinationPath $unpacked
    $root = (Get-ChildItem $unpacked | Select-Object -First 1).FullName
    $isAdmin = Write-Machine
    Test-Sums $root
    if ($isAdmin) { Test-Registration $root } else { Add-Line 'Registration is not checked: no administrator.' }
    if ($Programs) {
        Invoke-Tests $Programs
        Invoke-LongRuns $Programs
        Invoke-Recipes $Programs (Join-Path $root 'docs\recipes')
    }
} catch {
    Add-Result $false "the check itself: $($_.Exception.Message) $($_.ScriptStackTrace)"
} finally {
    Add-Line ''
    Add-Line "$script:Failures failed"
    [IO.File]::WriteAllLines((Join-Path $Report 'report.md'), $script:Lines)
    if (Test-Path $unpacked) { Remove-Item -Recurse -Force $unpacked -ErrorAction SilentlyContinue }
}
if ($script:Failures -gt 0) { exit 1 }
exit 0
