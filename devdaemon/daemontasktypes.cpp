#include "daemontasktypes.h"

#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

QJsonObject field(const QString &key, const QString &type, const QString &label, const QString &defaultValue,
                  const QJsonObject &extra = {})
{
    QJsonObject object{{u"key"_s, key},
                       {u"type"_s, type},
                       {u"label"_s, label},
                       {u"defaultValue"_s, defaultValue},
                       {u"required"_s, false},
                       {u"options"_s, QJsonArray()},
                       {u"visibleIf"_s, QJsonObject()},
                       {u"placeholder"_s, QString()}};
    for (auto member = extra.begin(); member != extra.end(); ++member)
        object.insert(member.key(), member.value());
    return object;
}

QJsonObject numberField(const QString &key, const QString &type, const QString &label, const QString &defaultValue,
                        int min, int max, const QString &placeholder)
{
    return field(key, type, label, defaultValue, {{u"min"_s, min}, {u"max"_s, max}, {u"placeholder"_s, placeholder}});
}

QJsonObject selectField(const QString &key, const QString &label, const QStringList &options,
                        const QJsonObject &extra = {})
{
    QJsonObject all = extra;
    all.insert(u"options"_s, QJsonArray::fromStringList(options));
    return field(key, u"select"_s, label, options.first(), all);
}

const QJsonObject &required()
{
    static const QJsonObject object{{u"required"_s, true}};
    return object;
}

QJsonObject audioSourceField()
{
    const QStringList sources{u"System sound"_s, u"Microphone"_s, u"System sound and microphone"_s, u"None"_s};
    return selectField(u"audioSource"_s, u"Audio Source"_s, sources, required());
}

QJsonObject sampleRateField()
{
    return selectField(u"audioSampleRate"_s, u"Audio Sample Rate"_s, {u"48000 Hz"_s, u"44100 Hz"_s, u"22050 Hz"_s});
}

QJsonObject bitrateField()
{
    return numberField(u"audioBitrate"_s, u"int"_s, u"Audio Bitrate"_s, u"192"_s, 32, 320, u"In kbit/s"_s);
}

QJsonObject channelsField()
{
    return selectField(u"channels"_s, u"Channels"_s, {u"Stereo"_s, u"Mono"_s});
}

QJsonObject taskType(const QString &id, const QString &name, const QString &description, const QString &category,
                     bool requiresGui, const QJsonArray &fields)
{
    return {{u"type"_s, id},
            {u"name"_s, name},
            {u"description"_s, description},
            {u"category"_s, category},
            {u"requiresGui"_s, requiresGui},
            {u"fields"_s, fields}};
}

QJsonObject screenRecordType()
{
    const QJsonArray fields{
        selectField(u"outputFormat"_s, u"Output format"_s, {u"MP4"_s, u"MKV"_s, u"AVI"_s}, required()),
        numberField(u"frameRate"_s, u"int"_s, u"Frame rate"_s, u"30"_s, 1, 120, u"Frames per second"_s),
        numberField(u"zoom"_s, u"double"_s, u"Zoom"_s, u"1.0"_s, 0, 4, u"1 records at the size of the screen"_s),
        field(u"captureCursor"_s, u"bool"_s, u"Capture mouse pointer"_s, u"true"_s),
        audioSourceField(),
        bitrateField(),
        sampleRateField(),
        channelsField(),
        field(u"watermark"_s, u"text"_s, u"Watermark"_s, {}, {{u"placeholder"_s, u"Text in the corner"_s}}),
    };
    return taskType(u"task_type.screen_record"_s, u"Screen Recorder"_s, u"Records the screen into a video file"_s,
                    u"recording"_s, true, fields);
}

QJsonObject audioRecordType()
{
    const QJsonObject onlyForMp3{{u"visibleIf"_s, QJsonObject{{u"outputFormat"_s, u"MP3"_s}}}};
    const QJsonArray fields{
        audioSourceField(),
        selectField(u"outputFormat"_s, u"Output format"_s, {u"MP3"_s, u"OGG"_s, u"FLAC"_s, u"WAV"_s}, required()),
        bitrateField(),
        sampleRateField(),
        channelsField(),
        field(u"enableVbr"_s, u"bool"_s, u"Enable VBR if supported"_s, u"false"_s, onlyForMp3),
        numberField(u"gain"_s, u"double"_s, u"Gain"_s, u"0.0"_s, -20, 20, u"In decibels"_s),
    };
    return taskType(u"task_type.audio_record"_s, u"Audio Recorder"_s, u"Records sound into an audio file"_s,
                    u"recording"_s, false, fields);
}

QJsonObject testType()
{
    const QStringList outcomes{u"Automatic"_s, outcomeSuccess, outcomeFailure, outcomeTimeout};
    const QJsonArray fields{
        selectField(simulatedOutcomeKey, u"Simulated outcome"_s, outcomes),
        numberField(simulatedSecondsKey, u"int"_s, u"Simulated run time"_s, u"0"_s, 0, 3600,
                    u"In seconds; 0 takes the daemon's setting"_s),
        numberField(u"ratio"_s, u"double"_s, u"Ratio"_s, u"1.5"_s, -10, 10, u"Any number from -10 to 10"_s),
        field(u"verbose"_s, u"bool"_s, u"Verbose"_s, u"true"_s),
        field(u"note"_s, u"text"_s, u"Note"_s, u"first note"_s,
              {{u"required"_s, true}, {u"placeholder"_s, u"Any text"_s}}),
    };
    return taskType(u"task_type.test"_s, u"Test Task"_s, u"One field of every kind"_s, u"test"_s, false, fields);
}

QJsonObject pdfConvertType()
{
    const QJsonArray fields{
        selectField(u"pageSize"_s, u"Page size"_s, {u"A4"_s, u"Letter"_s, u"Original"_s}),
        field(u"pages"_s, u"text"_s, u"Pages"_s, {}, {{u"placeholder"_s, u"1-3,7"_s}}),
    };
    return taskType(u"task_type.pdf_convert"_s, u"PDF Converter"_s, u"Converts documents to PDF"_s, u"documents"_s,
                    false, fields);
}

} // namespace

const QJsonArray &taskTypes()
{
    static const QJsonArray types{
        screenRecordType(), audioRecordType(), testType(), pdfConvertType(),
        taskType(u"task_type.zentaDesk"_s, u"Zenta Desk"_s, u"Has no parameters"_s, u"desktop"_s, true, {})};
    return types;
}

bool isTaskType(const QString &id)
{
    return std::any_of(taskTypes().begin(), taskTypes().end(),
                       [&id](const QJsonValue &type) { return type.toObject().value("type"_L1) == QJsonValue(id); });
}

} // namespace Scheduler::DevDaemon
