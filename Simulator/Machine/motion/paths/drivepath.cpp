#include "drivepath.h"

#include <algorithm>

void DrivePath::append(const PathPiece &piece)
{
    if (!(piece.length > 0.0))
        return;
    allPieces.push_back(piece);
    starts.push_back(last);
    offsets.push_back(total);
    last = last.advanced(piece.length, piece.curvature);
    total += piece.length;
}

void DrivePath::append(const DrivePath &path)
{
    if (path.allPieces.empty())
        return;
    if (allPieces.empty())
        last = path.starts.front();
    for (const PathPiece &piece : path.allPieces)
        append(piece);
    // The appended path's own end is more exact than the sum of its pieces.
    last = path.last;
}

DrivePath::Point DrivePath::at(double distance) const
{
    if (allPieces.empty())
        return {last, false};
    const auto after = std::upper_bound(offsets.begin(), offsets.end(), distance);
    const auto index = static_cast<size_t>(std::max<std::ptrdiff_t>(0, after - offsets.begin() - 1));
    const PathPiece &piece = allPieces[index];
    const double within = std::clamp(distance - offsets[index], 0.0, piece.length);
    return {starts[index].advanced(within, piece.curvature), piece.isWorked};
}
