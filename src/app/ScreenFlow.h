#pragma once

// True while the in-game chat line takes the typed characters.
extern bool g_bChatOpen;

// Ties the player's input to the screens: what a typed character, a click or a key does where.
class CScreenFlow
{
public:
    // A typed character: powerup keys spend the oldest letter, fly keys move a free eye in play.
    void OnChar(char cCharacter);

private:
    void SpendPowerupOn(int iTarget);
    void Fly(char cLowerCase);
};
