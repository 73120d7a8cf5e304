#pragma once

#include <QFlags>
#include <stdexcept>
#include <QString>

// Enumerations of the form designer engine, in declaration order.
enum TMessageProcessor { mpEvent, mpHook };
enum TChildrenMode { cmNone, cmNormal, cmRecurse };
enum TProtectMode { pmUnselect, pmLockKeyboard };
enum TGrabMode { gmMiddle, gmInside, gmOutside };
enum TGrabPosition {
    gpNone,
    gpLeftTop,
    gpLeftMiddle,
    gpLeftBottom,
    gpMiddleTop,
    gpMiddleBottom,
    gpRightTop,
    gpRightMiddle,
    gpRightBottom
};
using TGrabPositions = unsigned; // one bit per position: grabBit()
enum TGrabType { gtNormal, gtMulti, gtLocked };
enum TMouseAction { maNone, maDragging, maSelecting, maPlacing };
enum TListType { ltLocked, ltProtected, ltTransparent };
enum TAlignMode { amNoChange, amLeftTop, amCenters, amRightBottom, amSpace, amWindowCenter };
enum TSizeMode { smNoChange, smToSmallest, smToLargest, smValue };
enum TAlignmentPaletteOption { apAutoShow = 0x1, apStayOnTop = 0x2, apShowHints = 0x4, apFlatButtons = 0x8 };
Q_DECLARE_FLAGS(TAlignmentPaletteOptions, TAlignmentPaletteOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(TAlignmentPaletteOptions)
enum TDFMFormat { dfmBinary, dfmText };
enum TEditBehaviour {
    ebDefault,
    ebTransparent,
    ebLocked,
    ebProtected,
    ebDefaultRuntime,
    ebTransparentRuntime,
    ebLockedRuntime
};
enum TLinePosition { lpLeft = 0x1, lpTop = 0x2, lpRight = 0x4, lpBottom = 0x8 };
Q_DECLARE_FLAGS(TLinePositions, TLinePosition)
Q_DECLARE_OPERATORS_FOR_FLAGS(TLinePositions)
enum TMoveLimitMode { lmCursor, lmControls };

// A set of grab positions, one bit per position.
constexpr unsigned grabBit(TGrabPosition p) { return 1u << unsigned(p); }
constexpr unsigned kAllGrabs = 0x1FE; // every position but gpNone

// Every error the engine raises; the texts are the engine's own (English).
class EFormDesigner : public std::runtime_error
{
public:
    explicit EFormDesigner(const QString &message) : std::runtime_error(message.toStdString()) {}
    QString message() const { return QString::fromStdString(what()); }
};
