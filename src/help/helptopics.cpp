// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "helptopics.h"

QVector<HelpTopic> helpTopics()
{
    return {
        {QStringLiteral("Port and Rate"),
         QStringLiteral(
             " Select COM Port and Baud Rate</h3>  To connect to the device, select the COM port"
             " and baud rate then press Connect. The COM port drop down will offer all available"
             " ports on the computer. </div> <div>If you are not sure what the baud rate of the"
             " device is, select 'Auto' as the baud rate. If you are not sure which COM Port to"
             " use, click the ‘Select Port’ dropdown, then disconnect and reconnect the device."
             " The correct COM Port should disappear then reappear after a few seconds</div>"),
         false},
        {QStringLiteral("Common Settings"),
         QStringLiteral(
             " Common Settings</h3> <h4>Pings Per Second</h4> <div>Pings Per Second will set"
             " number of depths that will be measured and output per second by the device. It can"
             " be set from 1 -10 Hz.</div><h4>Sound Velocity</h4> <div>This specifies the sound"
             " velocity value that will be used for computing depth. The sound velocity range is"
             " 1350 m/s to 1750 m/s. The depth measured is scaled to account for changing sound"
             " velocity. An incorrect sound velocity will create errors is calculated depths as"
             " the depth increases. A bar check should be performed to confirm transducer setup"
             " and velocity value are correct for each survey. Sound velocity is a factor of"
             " salinity, temperature and water depth (pressure). As a shallow water system the"
             " main factors for this device are temperature and salinity. Calibration devices are"
             " available to determine a sound velocity. If this resource is not available a look"
             " up table is available in the Appendix B of the manual for reference.</div><h4>Max"
             " Depth</h4> <div>The device will compute a depth within the range limit set here, up"
             " to a maximum of 100m. Acoustic information beyond this value is ignored. Ensure"
             " that the maximum depth value entered adequately covers the proposed survey area. If"
             " the sea floor was to drop beyond the maximum depth value set, the device will not"
             " detect a depth resulting in unusable data being recorded and/or output in real"
             " time.</div>"),
         true},
        {QStringLiteral("Echo Sounder Mode"),
         QStringLiteral(
             " Echo Sounder Mode</h3> Testing has shown that Auto or Shallow (for HF only) will"
             " cover most survey deployments. Shallow or Manual mode allows the operator to change"
             " certain parameters to work around difficult conditions due to loss of signal or"
             " interference."),
         true},
        {QStringLiteral("Enable/Disable"),
         QStringLiteral(
             " Enable or Disable Individual Frequency</h3> When Enabled the transducer is pinging"
             " and measuring a depth. Set to Disable to stop transducer pinging."),
         true},
        {QStringLiteral("Time Variable Gain"),
         QStringLiteral(
             " Time Variable Gain</h3> Acoustic energy is lost as sound moves through water. The"
             " deeper the water, the greater the loss will be. Gain is the amplification of the"
             " input signal to enhance depth detection. Time Varied Gain, or TVG, is a function"
             " where the amount of gain applied to the signal is increased as the time period"
             " increases. The amount of gain is selected by the operator when in Manual mode. This"
             " device offers three TVG options, OFF, Log 10 or Log 20. </div> <h4>TVG OFF</h4> is"
             " best used when working in very shallow water (less than 20 metres) or if the sea"
             " bed is very hard therefore reflecting strong acoustic energy back to the"
             " transducer. <h4>TVG Log10</h4> is suitable for use in most survey applications"
             " <h4>TVG Log20</h4> is best used in deeper water (50 metres to 100 metres) or where"
             " the acoustic energy being lost or absorbed in the seabed."),
         true},
        {QStringLiteral("HF Setup"),
         QStringLiteral(
             " Inputs</h3> These selections are set by the operator to adjust for individual"
             " changes in the transducer installation and operation.”<h4>Draft</h4> Draft is the"
             " depth of the transducer below water surface. This value is added to the measured"
             " water depth to give a depth below surface value.<h4>Index</h4> An index offset will"
             " correct an electronic delay between echo sounder and transducer. This is typically"
             " constant to a transducer. An index offset may be seen when performing a bar check"
             " to confirm correct configuration.<h4>Frequency</h4>Users can set the transducer"
             " frequency by using this option. It is recommended to leave this value at 200 kHz."
             " Frequency range 190 - 210 kHz.<h4>Blanking</h4> Blanking is used create a time gap"
             " between the transmit and receive signals in the echosounder circuitry. After a"
             " transducer pings (or transmits) the element may continue to oscillate for a period"
             " and be mistaken as a depth response by the receiver. The ring period corresponds to"
             " the amount of power being transmitted. The more power being used (or deeper the"
             " water is) the greater the blanking distance is required to be. Adjust the blanking"
             " distance until the device is able to lock on the bottom and ignore the false echoes"
             " or other interference close to the surface area.</div>"),
         true},
        {QStringLiteral("LF Setup"),
         QStringLiteral(
             " Inputs</h3>           These selections are set by the operator to adjust for"
             " individual changes in the transducer installation and operation.” <h4>Draft</h4>"
             " Draft is the depth of the transducer below water surface. This value is added to"
             " the measured water depth to give a depth below surface value. <h4>Index</h4> An"
             " index offset will correct an electronic delay between echo sounder and transducer."
             "  This is typically constant to a transducer. An index offset may be seen when"
             " performing a bar check to confirm correct configuration. <h4>Frequency</h4>Users"
             " can set the transducer frequency by using this option. It is recommended to leave"
             " this value at 33 kHz. Frequency range 30 - 36 kHz. <h4>Blanking</h4> Blanking is"
             " used create a time gap between the transmit and receive signals in the echosounder"
             " circuitry.  After a transducer pings (or transmits) the element may continue to"
             " oscillate for a period and be mistaken as a depth response by the receiver.  The"
             " ring period corresponds to the amount of power being transmitted. The more power"
             " being used (or deeper the water is) the greater the blanking distance is required"
             " to be.  Adjust the blanking distance until the device is able to lock on the bottom"
             " and ignore the false echoes or other interference close to the surface area.</div>"),
         true},
        {QStringLiteral("LF Pulse Cycles"),
         QStringLiteral(
             " Pulse Cycles</h3> Pulse length relates to the number cycles transmitted by the"
             " transducer. this effectively translates to the amount of power being sent to the"
             " water column. In deep water there is greater energy loss through the water column"
             " therefore more power is required. The deeper the water the greater the number of"
             " cycles that should be transmitted. Alternatively very shallow water requires very"
             " little power and so a smaller number of cycles are required.</div>"),
         true},
        {QStringLiteral("HF Pulse Cycles"),
         QStringLiteral(
             " Pulse Cycles</h3>  Pulse length relates to the number cycles transmitted by the"
             " transducer.  This effectively translates to the amount of power being sent to the"
             " water column.  In deep water there is greater energy loss through the water column"
             " therefore more power is required.  The deeper the water the greater the number of"
             " cycles that should be transmitted.  Alternatively very shallow water requires very"
             " little power and so a smaller number of cycles are required.</div>"),
         true},
        {QStringLiteral("Gain"),
         QStringLiteral(
             " Gain</h3>Gain is the amplification of the input signal to enhance depth detection."
             " Manual gain settings are given as a percentage (%) and can be adjusted from 30 –"
             " 100%. The gain applied in this setting is independent of the TVG setting."),
         true},
        {QStringLiteral("Detect Threshold"),
         QStringLiteral(
             " Detect Threshold</h3>The detection threshold relates to the signal strength that"
             " will trigger the digitizer to give a depth value, therefore changing the"
             " sensitivity of the echosounder. The detection value is given as a percentage and"
             " can be increased or decreased depending on what the operator is trying measure."),
         true},
    };
}
