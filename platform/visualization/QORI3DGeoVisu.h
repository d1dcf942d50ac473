#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// A shape that no toolkit has touched yet, in millimetres, about its own origin.
struct QORGeoShape {
    enum Kind {
        None,     ///< nothing to see
        Box,      ///< sizes: dx, dy, dz; from the origin along the axes
        Cylinder, ///< sizes: radius, height; from the origin along z
        Sphere,   ///< sizes: radius; about the origin
        StepFile  ///< the named part of a STEP file, all of it for an empty name
    };

    Kind kind = None;
    double sizes[3] = {0, 0, 0};
    QORUnicodeString file; ///< path of the STEP file
    QORUnicodeString part; ///< name of the part in it
};

/// Where a shape stands: moved by millimetres, after turning by degrees about the fixed x, y and z axes in that order.
struct QORGeoPlace {
    double moved[3] = {0, 0, 0};
    double turned[3] = {0, 0, 0};
};

/// Answered by objects that can be seen in space.
class QORI3DGeoVisu : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORI3DGeoVisu"); }

    /// Fill what they are given. Negative, and the argument is left alone, when the object can't tell at present.
    virtual QORStatus GetShape(QORGeoShape& oShape) = 0;
    virtual QORStatus GetPlace(QORGeoPlace& oPlace) = 0;
};

inline constexpr QORInterfaceID IID_QORI3DGeoVisu = QORI3DGeoVisu::InterfaceID();
using QORI3DGeoVisu_var = QORVar<QORI3DGeoVisu>;

template <class Impl>
class QORI3DGeoVisuTie : public QORTie<QORI3DGeoVisu, Impl> {
public:
    using QORTie<QORI3DGeoVisu, Impl>::QORTie;

    QORStatus GetShape(QORGeoShape& oShape) override { return this->Target()->GetShape(oShape); }
    QORStatus GetPlace(QORGeoPlace& oPlace) override { return this->Target()->GetPlace(oPlace); }
};
