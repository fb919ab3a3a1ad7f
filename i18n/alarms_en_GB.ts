<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>No alarm.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Part of the device is still missing</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Input unit cover open</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Control electronics faulty. Call service.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Control electronics too hot.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Supply voltage out of range.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>No connection to motor control.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Motor current too low, check motor.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Motor overload.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Motor too hot.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>Motor does not restart.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Motor phase missing.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Motor short circuit.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Motor blocked.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>Motor turns in the wrong direction.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Motor emergency operation failed. Call service.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Motor parameters invalid.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Pressure sensor fault. Call service.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>No signal from pressure sensor.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Compressed air: pressure too high. Device switched off.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Compressed air: pressure too low. Treatment not possible.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Suction unit blocked. Check suction lines.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Suction unit: vacuum too high.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Suction unit: vacuum too low.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Suction unit: vacuum reading implausible.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Suction unit too hot. Allow to cool down.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Sterilisation failed: vacuum not reached.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Sterilisation failed: temperature and pressure do not match.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Sterilisation failed: sterilisation time too short.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Printer: wrong label roll inserted.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>No connection to display.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>No connection to amalgam separator.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Amalgam separator: collecting container full. Replace it.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Software update failed.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Network settings invalid.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Time synchronisation failed.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Image plate scanner: laser power deviates. Call service.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Image plate scanner: scan not completed in time.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programme not permitted for this load.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Suction unit: flow test failed.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>USB storage device cannot be read.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Connection to practice server lost.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Login blocked after too many failed attempts.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Software licence invalid.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Calibration data invalid.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse: connection failed.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse: registration failed. Check network and code.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Steam generator too hot.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Maintenance interval exceeded. Do not use until serviced.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Lid of collecting container open.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Collecting container missing.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Door open.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Door lock jammed. Do not force door open.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filter clogged. Replace filter.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Drain of amalgam separator blocked.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>No water supply. Open water valve.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Wrong disinfectant inserted.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>Dosing pump does not deliver disinfectant.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>Transport system needs maintenance</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Control electronics temperature high. Check ventilation.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>Power supply was interrupted.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Supply voltage fluctuating.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Internal clock reset. Set date and time.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Motor temperature high.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>Motor restarted several times.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Motor emergency operation.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Compressed air: pressure high.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Compressed air: pressure low. Check lines for leaks.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>No signal from dryer humidity sensor.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Suction unit: temperature high.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Compressor run-time high.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>Dryer regenerates too often.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Steriliser: vacuum builds up slowly.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Steriliser: chamber pressure deviates from set value.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Steriliser: vacuum test overdue.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Lid of water tank not closed.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Printer: paper jam.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Maintenance overdue. Arrange service visit.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Settings reset to factory defaults.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Report export failed. Check target folder.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>E-mail notification could not be sent.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse: access authorisation expires soon.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse: no data transmitted since yesterday.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Data backup aborted.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>Door was opened before end of programme.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Door lock stiff. Clean door seal.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filter dirty.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Supply of suction disinfectant missing. Insert new bottle.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Waste water container full. Empty container.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Application time interrupted</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>Output sensor faulty!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>The file does not belong to this type of device.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>The data import was completed with warnings.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>The data import was cancelled by the user.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>The uploaded file is empty.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>The device header has an invalid format.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>The device header contains neither REF nor DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>The REF or DEV_SN does not match the device.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>The data import was incomplete.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>Uploaded file needs newer software. Update the device.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>The data export failed.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Control electronics restarted unexpectedly.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Compressed air: pressure briefly above switch-off value.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Compressed air: pressure briefly below switch-on value.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Compressor run-time very high. Check system</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Dryer regeneration restarted.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Sterilisation cancelled by user. Load not sterile.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Sterilisation started.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Vacuum test started.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Annual maintenance due soon.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Validation of steriliser due.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Amalgam separator: collecting container almost full.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Software update available.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Software update installed.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Calendar: appointment today.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Settings changed.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Report export started.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Report export completed.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Report export postponed: target folder not reachable.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Report export aborted.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Night mode active.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Self-test completed. See report.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Remote access for service enabled.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse: device removed from account.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Data backup started.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Data backup completed.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Room temperature high. Check room ventilation.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Filter replacement due soon.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Water conductivity high.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Disinfection due.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>Speed not OK!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Control electronics restarted.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Calibration started.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Printer: paper supply low.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Printer ready.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Label printed.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Date and time synchronised.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>User logged in.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>X-ray image transferred.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Remote access for service ended.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse: device added to account.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Water quality log updated.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Disinfection started.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Waterline flushing started.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Event memory cleared.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>The data export was completed.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Report saved as PDF file.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Older reports archived.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>The data import was completed successfully.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Wizard was aborted: Setup of Quillon Pulse via wizard was not completed.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>Input sensor blocked for too long?</translation>
    </message>
</context>
</TS>
