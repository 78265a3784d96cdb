// The pictures of the tree list page, drawn by the program itself.
#pragma once
#include <afxcmn.h>

/// Three pictures of 16 by 16: a storey, a member, a bar.
void makeRowPictures(CImageList& pictures);

/// Two arrows for the header: ascending, descending.
void makeSortPictures(CImageList& pictures);
