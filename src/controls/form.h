#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/menu_item.h"
#include "controls/mouse_pointer.h"
#include "runtime/error.h"

namespace controls {

/// A window: its controls, its menu and its life. The controls are members of the class that derives from it.
class Form : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  /// Takes the window away, without events, if it is still loaded.
  ~Form() override;

  /// Place and size on the screen, in the units of Desktop::screenWidth(). The desktop fills the size in
  /// before `loading` is raised.
  int left() const { return left_; }
  void setLeft(int left) { assign(left_, left); }
  int top() const { return top_; }
  void setTop(int top) { assign(top_, top); }
  int width() const { return width_; }
  void setWidth(int width) { assign(width_, width); }
  int height() const { return height_; }
  void setHeight(int height) { assign(height_, height); }
  MousePointer mousePointer() const { return mousePointer_; }
  void setMousePointer(MousePointer pointer) { assign(mousePointer_, pointer); }

  /// Registers a control of the window, in the order of the window's definition.
  void add(Control& control) { controlList_.push_back(&control); }
  const std::vector<Control*>& controlList() const { return controlList_; }
  /// The registered control of that name and kind; error 5 if there is none.
  template <typename Kind>
  Kind& control(std::string_view name) const {
    if (auto* found = dynamic_cast<Kind*>(find(name))) return *found;
    throw missing(name);
  }
  /// Registers a menu of the window's menu bar.
  void addMenu(MenuItem& menu) { menus_.push_back(&menu); }
  const std::vector<MenuItem*>& menus() const { return menus_; }

  /// The number that stands for the window among all of this process.
  std::int32_t hwnd() const { return hwnd_; }
  /// The window of that number; nullptr if there is none.
  static Form* withHandle(std::int32_t hwnd);

  bool loaded() const { return loaded_; }
  /// Builds the window, still hidden, and raises `loading`; nothing if it is loaded.
  void load();
  /// Loads the window if it isn't and shows it. A modal one returns when it is unloaded.
  void show(bool modal = false);
  /// The way out, also of a click on the window's frame: raises `queryUnload`, whose handler can refuse, then
  /// `unloading`, and takes the window away. While the window is busy the request waits for the work's end.
  /// False if it was refused or waits.
  bool unload();

  /// Does `work` as a piece that the window has to outlive: an unload() meanwhile is done after it. May be
  /// nested.
  void whileBusy(const std::function<void()>& work);
  bool busy() const { return busy_ > 0; }

  Event<> loading;
  /// Set the argument to refuse.
  Event<bool&> queryUnload;
  Event<> unloading;
  /// An unload() waits for the end of the work.
  Event<> unloadDelayed;

 private:
  static std::int32_t newHandle(Form& form);
  Control* find(std::string_view name) const;
  runtime::Error missing(std::string_view name) const;

  std::vector<Control*> controlList_;
  std::vector<MenuItem*> menus_;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  MousePointer mousePointer_ = MousePointer::Default;
  bool loaded_ = false;
  bool unloadWaits_ = false;
  int busy_ = 0;
  const std::int32_t hwnd_ = newHandle(*this);
};

}  // namespace controls
