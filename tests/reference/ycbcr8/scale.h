// Range scaling of `2vuy`, the reference implementation: one entry at a time in whole numbers.
#pragma once

namespace tintvert::reference {

int luma_down(int value);
int chroma_down(int value);
int luma_up(int value);
int chroma_up(int value);

void tntvt_2vuy_scale(unsigned char* buffer, unsigned int bytes, unsigned int up);

}  // namespace tintvert::reference
