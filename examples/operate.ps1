# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
<#
.SYNOPSIS
Presses a button in the simulator's window, by way of UI Automation: operate.ps1 toggle, raise or end.
.DESCRIPTION
"toggle" starts or stops the simulation. "raise" raises the alarm that is chosen in the window and "end" ends it; for
these the program must run with --factorytech. Nobody has to sit at the screen, but a user has to be logged on: services
have no desktop with windows.
#>
param(
    [Parameter(Mandatory = $true)]
    [ValidateSet('toggle', 'raise', 'end')]
    [string] $Action
)

$ErrorActionPreference = 'Stop'
Add-Type -AssemblyName UIAutomationClient
Add-Type -AssemblyName UIAutomationTypes

$names = @{ toggle = 'startStopSimulationButton'; raise = 'raiseAlarmButton'; end = 'removeAlarmButton' }

# An automation id is made of the object names from the window down to the button.
$ofWindow = New-Object System.Windows.Automation.PropertyCondition(
    [System.Windows.Automation.AutomationElement]::AutomationIdProperty, 'MainWindow')
$ofButtons = New-Object System.Windows.Automation.PropertyCondition(
    [System.Windows.Automation.AutomationElement]::ControlTypeProperty, [System.Windows.Automation.ControlType]::Button)

$deadline = (Get-Date).AddSeconds(30)
do {
    $button = $null
    $window = [System.Windows.Automation.AutomationElement]::RootElement.FindFirst(
        [System.Windows.Automation.TreeScope]::Children, $ofWindow)
    if ($window) {
        $button = $window.FindAll([System.Windows.Automation.TreeScope]::Descendants, $ofButtons) |
            Where-Object { $_.Current.AutomationId -like "*.$($names[$Action])" } | Select-Object -First 1
    }
    if (-not $button) {
        if ((Get-Date) -gt $deadline) { throw "There is no window with a $($names[$Action])." }
        Start-Sleep -Milliseconds 100
    }
} until ($button)

$button.GetCurrentPattern([System.Windows.Automation.InvokePattern]::Pattern).Invoke()
