#pragma once

#include "formfields.h"

#include <QJsonObject>

/// The "paramsJson" of tasks, for the tests of the task document.
namespace TaskParams {

/// The object with the members of the other in the place of its own.
inline QJsonObject merged(QJsonObject params, const QJsonObject &changes)
{
    for (auto member = changes.begin(); member != changes.end(); ++member)
        params.insert(member.key(), member.value());
    return params;
}

/// What a document consists of, where a case does not say otherwise.
inline QJsonObject plain()
{
    return FormFields::object(R"({
        "startRecordingOn": {"mode": "EveryDay", "dailyTime": "09:00:00"},
        "autoStopCondition": {"mode": "None"},
        "outputSettings": {"mode": "UseDefault"},
        "displayMode": "Show",
        "dynamicParams": {"fps": 30, "format": "MP4", "title": ""}
    })");
}

inline QJsonObject plainWith(const char *members)
{
    return merged(plain(), FormFields::object(members));
}

} // namespace TaskParams
