#pragma once

/// While one of these lives, GLU's tessellator does no work: a polygon is answered with as many triangles as its
/// contours have when they do not cross, of any of its vertices. What a rebuild then takes is the plug-in's own share.
class QuietGlu {
public:
    QuietGlu();
    ~QuietGlu();
    QuietGlu(const QuietGlu &) = delete;
    QuietGlu &operator=(const QuietGlu &) = delete;
};
