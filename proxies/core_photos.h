#pragma once
// The core photos: one record per photo form, k = 1 to 4, in one table.
#include "forms/frm_photo.h"
#include "runtime/checked_int.h"
#include "runtime/table.h"

namespace ostraline {

struct PhotoRecord {
  BooleanFlag PhotoOpen = false;
  // The picture is at least as high as it is wide.
  BooleanFlag PhotoPortrait = false;
  // 1, 2, 4, 8 or 16: the index of the checked zoom entry.
  Integer PhotoZoom = 1;
  BooleanFlag PhotoDragging = false;
  // The pointer's offset from the image's corner when the drag began.
  Single PhotoDragX = 0;
  Single PhotoDragY = 0;
  // Where the pop-up menu was called, in form units: the fixed point of a zoom.
  Long PhotoClickX = 0;
  Long PhotoClickY = 0;
};

struct PhotoState {
  PhotoState() { Photo.Dim({{1, 4}}); }
  Table<PhotoRecord> Photo;
};

inline PhotoState photoState;

inline BooleanFlag& PhotoOpen(int k) {
  return photoState.Photo(k).PhotoOpen;
}
inline BooleanFlag& PhotoPortrait(int k) {
  return photoState.Photo(k).PhotoPortrait;
}
inline Integer& PhotoZoom(int k) {
  return photoState.Photo(k).PhotoZoom;
}
inline BooleanFlag& PhotoDragging(int k) {
  return photoState.Photo(k).PhotoDragging;
}
inline Single& PhotoDragX(int k) {
  return photoState.Photo(k).PhotoDragX;
}
inline Single& PhotoDragY(int k) {
  return photoState.Photo(k).PhotoDragY;
}
inline Long& PhotoClickX(int k) {
  return photoState.Photo(k).PhotoClickX;
}
inline Long& PhotoClickY(int k) {
  return photoState.Photo(k).PhotoClickY;
}

// The form of record k.
PhotoFormRef& PhotoForm(int k);

// The "Photo" button of a main form: a picture into the first free photo
// form, placed beside its neighbour. Owner is the main form whose button was
// pressed; the first photo sits beside it.
void OpenPhotoBeside(Form& owner, CommonDialog& dialog);

}  // namespace ostraline
