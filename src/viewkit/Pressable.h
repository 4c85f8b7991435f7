#pragma once

// A control the keyboard presses: Space or Return on it, or a key bound to it, does what a
// click does. The keyboard's navigator knows only this, not the controls that answer it.
class Pressable {
public:
    virtual void press() = 0;

protected:
    ~Pressable() = default;
};
