// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formtable.h"

namespace {

constexpr Qt::CursorShape hand = Qt::PointingHandCursor;
constexpr Qt::CursorShape arrow = Qt::ArrowCursor;
constexpr Qt::CursorShape beam = Qt::IBeamCursor;
constexpr const char *button = "QPushButton";
constexpr const char *radio = "QRadioButton";
constexpr const char *combo = "QComboBox";
constexpr const char *edit = "QLineEdit";
constexpr const char *slider = "QSlider";
constexpr bool checked = true;
constexpr bool disabled = false;

// clang-format off
const std::vector<Control> controls = {
    {"autoSave",             radio,  "Autosave"},

    {"selectRateInfo",       button},
    {"portComboBox",         combo,  "Select Port"},
    {"baudComboBox",         combo,  "Select Rate"},
    {"connectToDevice",      button, "Connect"},
    {"imperialRadio",        radio,  "IMPERIAL", hand, "buttonGroup_5"},
    {"metricRadio",          radio,  "METRIC",   hand, "buttonGroup_5", checked},

    {"commonSettingsInfo",   button, "", hand, "", false, disabled},
    {"pingDown",             button},
    {"pingEdit",             edit,   "5", beam},
    {"pingUp",               button},
    {"soundVelocityDown",    button},
    {"soundVelocityEdit",    edit,   "1500", beam},
    {"soundVelocityUp",      button},
    {"maxDepthDown",         button},
    {"maxDepthEdit",         edit,   "30", beam},
    {"maxDepthUp",           button},

    {"highEnableInfo",       button},
    {"highModeInfo",         button},
    {"highTVGInfo",          button},
    {"enableHF",             radio,  "Enable",  arrow, "", checked},
    {"disableHF",            radio,  "Disable", arrow},
    {"highShallowRadio",     radio,  "Shallow", hand, "buttonGroup_4", checked},
    {"highAutoRadio",        radio,  "Auto",    hand, "buttonGroup_4"},
    {"highManualRadio",      radio,  "Manual",  hand, "buttonGroup_4"},
    {"highOffTvg",           radio,  "OFF",     hand, "buttonGroup_3"},
    {"highLog10Tvg",         radio,  "Log 10",  hand, "buttonGroup_3", checked},
    {"highLog20Tvg",         radio,  "Log 20",  hand, "buttonGroup_3"},
    {"highPulseInfo",        button},
    {"highPulseSlider",      slider},
    {"highPulseDown",        button},
    {"highPulseUp",          button},
    {"highGainInfo",         button},
    {"highGainSlider",       slider},
    {"highGainDown",         button},
    {"highGainUp",           button},
    {"highDetectInfo",       button},
    {"highDetectSlider",     slider},
    {"highDetectDown",       button},
    {"highDetectUp",         button},
    {"highInputsInfo",       button},
    {"highDraftDown",        button},
    {"highDraft",            edit,   "0.40", beam},
    {"highDraftUp",          button},
    {"highIndexDown",        button},
    {"highIndex",            edit,   "0.00", beam},
    {"highIndexUp",          button},
    {"highFreqDown",         button},
    {"highFreq",             edit,   "200", beam},
    {"highFreqUp",           button},
    {"highBlankDown",        button},
    {"highBlank",            edit,   "0.45", beam},
    {"highBlankUp",          button},
    {"highBlankingSlider",   slider},

    {"lowEnableInfo",        button},
    {"lowModeInfo",          button},
    {"lowTVGInfo",           button},
    {"enableLF",             radio,  "Enable",  arrow, "", checked},
    {"disableLF",            radio,  "Disable", arrow},
    {"lowShallowRadio",      radio,  "Shallow", arrow, "buttonGroup_2", checked},
    {"lowAutoRadio",         radio,  "Auto",    arrow, "buttonGroup_2"},
    {"lowManualRadio",       radio,  "Manual",  arrow, "buttonGroup_2"},
    {"lowOffTvg",            radio,  "OFF",     arrow, "buttonGroup"},
    {"lowLog10Tvg",          radio,  "Log 10",  arrow, "buttonGroup"},
    {"lowLog20Tvg",          radio,  "Log 20",  arrow, "buttonGroup", checked},
    {"lowPulseInfo",         button},
    {"lowPulseSlider",       slider, "", arrow},
    {"lowPulseDown",         button},
    {"lowPulseUp",           button},
    {"lowGainInfo",          button},
    {"lowGainSlider",        slider, "", arrow},
    {"lowGainDown",          button},
    {"lowGainUp",            button},
    {"lowDetectInfo",        button},
    {"lowDetectSlider",      slider, "", arrow},
    {"lowDetectDown",        button},
    {"lowDetectUp",          button},
    {"lowInputsInfo",        button},
    {"lowDraftDown",         button},
    {"lowDraft",             edit,   "0.40", beam},
    {"lowDraftUp",           button},
    {"lowIndexDown",         button},
    {"lowIndex",             edit,   "0.00", beam},
    {"lowIndexUp",           button},
    {"lowFreqDown",          button},
    {"lowFreq",              edit,   "30", beam},
    {"lowFreqUp",            button},
    {"lowBlankDown",         button},
    {"lowBlank",             edit,   "0.45", beam},
    {"lowBlankUp",           button},
    {"lowBlankingSlider",    slider, "", arrow},

    {"openGraph",            button, "Open Graph"},
    {"newBaudComboBox",      combo,  "Baud Rate"},
    {"formatComboBox",       combo,  "NMEA DBS"},
    {"resetSettings",        button, "Reset"},
    {"saveSettingsToDevice", button, "Save"},

    {"hamburgerButton",      button},
    {"BootloadButton",       button, "Update TAL-VERO Firmware", arrow},
};

const std::vector<SliderSetting> sliders = {
    {"highPulseSlider",       1,   34, 1,  1, 16},
    {"highGainSlider",       30,  100, 1,  5, 75},
    {"highDetectSlider",      1,   75, 3,  5, 50},
    {"highBlankingSlider",    0, 1000, 1,  5, 50},
    {"lowPulseSlider",        1,   34, 1, 10, 16},
    {"lowGainSlider",        30,  100, 1,  5, 75},
    {"lowDetectSlider",       1,   75, 3,  5, 50},
    {"lowBlankingSlider",     0, 1000, 1, 10, 50},
};

const std::vector<Caption> captions = {
    {"headerLabel",             ""},
    {"selectPortLabel",         "Select Port and Rate:", "portComboBox"},
    {"selectModeLabel",         "Select Mode:"},
    {"commonSettingsLabel",     "Common Settings"},
    {"infoLabel",               ""},
    {"temperatureLabel",        ""},
    {"pingLabel",               "Pings Per Second", "pingEdit"},
    {"soundVelocityLabel",      "Sound Velocity",   "soundVelocityEdit"},
    {"maxDepthLabel",           "Max Depth (m)",    "maxDepthEdit"},

    {"highEnableLabel",         "Echo Sounder"},
    {"label_30",                ""},
    {"highModeLabel",           "Mode "},
    {"label_14",                ""},
    {"highTvgLabel",            "Time Variable Gain "},
    {"label_15",                ""},
    {"highManualSettingsLabel", "Manual Settings"},
    {"label_31",                ""},
    {"highPulseLabel",          "Pulse Cycles",     "highPulseSlider"},
    {"highPulseEdit",           "16"},
    {"highGainLabel",           "Gain",             "highGainSlider"},
    {"highGainEdit",            "75%"},
    {"highDetectLabel",         "Detect Threshold", "highDetectSlider"},
    {"highDetectEdit",          "50%"},
    {"highInputsLabel",         "Inputs Section "},
    {"label_16",                ""},
    {"highDraftLabel",          "Draft (m)",        "highDraft"},
    {"highIndexLabel",          "Index (m)",        "highIndex"},
    {"highFreqLabel",           "Frequency (kHz)",  "highFreq"},
    {"highBlankLabel",          "Blanking (m)",     "highBlank"},
    {"highBlankEdit",           "0.45m"},

    {"lowEnableLabel",          "Echo Sounder"},
    {"label_32",                ""},
    {"lowModeLabel",            "Mode "},
    {"label_17",                ""},
    {"lowTvgLabel",             "Time Variable Gain "},
    {"label_18",                ""},
    {"lowManualSettingsLabel",  "Manual Settings"},
    {"label_37",                ""},
    {"lowPulseLabel",           "Pulse Cycles",     "lowPulseSlider"},
    {"lowPulseEdit",            "16"},
    {"lowGainLabel",            "Gain",             "lowGainSlider"},
    {"lowGainEdit",             "75%"},
    {"lowDetectLabel",          "Detect Threshold", "lowDetectSlider"},
    {"lowDetectEdit",           "50%"},
    {"lowInputsLabel",          "Inputs Section "},
    {"label_19",                ""},
    {"lowDraftLabel",           "Draft (m)",        "lowDraft"},
    {"lowIndexLabel",           "Index (m)",        "lowIndex"},
    {"lowFreqLabel",            "Frequency (kHz)",  "lowFreq"},
    {"lowBlankLabel",           "Blanking (m)",     "lowBlank"},
    {"lowBlankEdit",            "0.45m"},

    {"openGraphLabel",          "Click to view depth graph:", "openGraph"},
    {"highDepthLabel",          ""},
    {"lowDepthLabel",           ""},
    {"newBaudLabel",            "Baud Rate:",              "newBaudComboBox"},
    {"formatLabel",             "Output Format:",          "formatComboBox"},
    {"resetLabel",              "Reset Settings",          "resetSettings"},
    {"saveLabel",               "Save Settings To Device:", "saveSettingsToDevice"},

    {"label_34",                ""},
    {"label_33",                ""},
    {"label_24",                ""},
    {"label_36",                "support@talvero.example"},
    {"label_35",                "www.talvero.example"},
};
// clang-format on

} // namespace

const std::vector<Control> &controlTable() { return controls; }

const std::vector<SliderSetting> &sliderTable() { return sliders; }

const std::vector<Caption> &captionTable() { return captions; }
