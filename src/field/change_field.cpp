#include "field/change_field.h"

#include <tintvert/field.h>

using namespace tintvert;

int tntvt_change_field_rgb(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                           unsigned int dstStride, unsigned char* src, unsigned int srcStride)
{
    const Change change{dst, dstStride, src, srcStride == 0 ? dstStride : srcStride, width, height};
    switch (mode) {
        case FieldDoubleFirst:
            return double_field(change, first_field, second_field);
        case FieldDoubleSecond:
            return double_field(change, second_field, first_field);
        case FieldFLip:
            return flip_fields(change);
        case FieldBlend:
            return blend_lines(change);
        case FieldCopySecondToSecond:
            return copy_field(change, second_field, second_field);
        case FieldCopyFirstToSecond:
            return copy_field(change, first_field, second_field);
        case FieldCopySecondToFirst:
            return copy_field(change, second_field, first_field);
        case FieldCopyFirstToFirst:
            return copy_field(change, first_field, first_field);
        case FieldLineDoubleFirst:
            return repeat_lines(change, first_field);
        case FieldLineDoubleSecond:
            return repeat_lines(change, second_field);
        case FieldInterpolateFirst:
            return interpolate_first(change);
        case FieldInterpolateSecond:
            return interpolate_second(change);
        // QUIRK (keeps_split_asymmetry): with the first field on top a line is `dstStride` bytes, with
        // the second field on top it is `srcStride` bytes.
        case FieldSplitFirstOnTop:
            return split_fields(change, first_field, change.dst_stride);
        case FieldSplitSecondOnTop:
            return split_fields(change, second_field, change.src_stride);
        default:
            return 0;
    }
}

// QUIRK (keeps_samples_uncomputed): a blend doubles the first field and an interpolation repeats lines.
int tntvt_change_field_yuv(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                           unsigned int dstStride, unsigned char* src, unsigned int srcStride)
{
    if (mode == FieldBlend) mode = FieldDoubleFirst;
    if (mode == FieldInterpolateFirst) mode = FieldLineDoubleFirst;
    if (mode == FieldInterpolateSecond) mode = FieldLineDoubleSecond;
    return tntvt_change_field_rgb(dst, mode, width, height, dstStride, src, srcStride);
}
