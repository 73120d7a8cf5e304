#pragma once

#include <QJsonObject>

class TMaskDocument;

namespace MaskDump {

// A loaded mask as one JSON object: its header, edit style and table
// settings, and every control in the mask's component order with its place,
// texts, font and all published properties.
QJsonObject MaskToJson(const TMaskDocument &document);

} // namespace MaskDump
