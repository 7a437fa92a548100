#pragma once
// The program as it stood at one moment, to go back to before each input:
// every subsystem's tables and scalars, and what the controls of the forms
// then loaded held. Forms loaded since are unloaded. Going back costs little
// where an input changed little: the correlation model's tables, the bulk of
// a set, are copied back only when an input wrote them, and keep their
// storage, so that the next import's five thousand rows take no new memory.
#include <functional>
#include <string>
#include <vector>

#include "core/bore_hole_set.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "duo/duo_state.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/form.h"
#include "proxies/core_photos.h"
#include "proxies/proxy_records.h"

namespace ostraline::fuzz {

class ProgramSnapshot {
 public:
  // Takes the program's state as it stands.
  ProgramSnapshot();
  ProgramSnapshot(const ProgramSnapshot&) = delete;
  ProgramSnapshot& operator=(const ProgramSnapshot&) = delete;

  void Restore() const;

 private:
  // A set without its model's tables, and those tables apart.
  struct SetCopy {
    explicit SetCopy(const BoreHoleSet& set);
    void RestoreInto(BoreHoleSet& set) const;
    BoreHoleSet rest;
    Table<std::string, 4> model;
    Table<std::string, 2> ties;
  };

  // The properties of one loaded form and of its controls, each written back
  // quietly, without running a handler.
  struct FormCopy {
    explicit FormCopy(FormSlot& slot);
    void RestoreInto(FormSlot& slot) const;
    const Form* form;
    std::vector<Control*> controls;
    std::vector<std::function<void()>> writeBack;
  };

  CoreState core_;
  SetCopy master_;
  SetCopy duo_;
  DuoState duoState_;
  DisplayState display_;
  EventState events_;
  BatchState batch_;
  ProxyRecords masterProxies_;
  ProxyRecords duoProxies_;
  ProxyState proxy_;
  PhotoState photo_;
  std::vector<FormSlot*> loaded_;
  std::vector<FormCopy> forms_;
};

}  // namespace ostraline::fuzz
