# The pictures that a catalogue record is shown with, one per name, and the picture of the about box. Included by
# the folder above, after talivane_main_window.
#
# A picture's path follows from its list and its key alone: the list's name without "il" in small letters, then the
# key with every blank as an underscore:
#   ilTODs, "Late Evening - Dusk"  ->  :/talivane/pictures/tods/Late_Evening_-_Dusk.svg
qt_add_resources(talivane_main_window talivane_picture_lists
  PREFIX /talivane
  FILES
    pictures/about.svg
    pictures/animals/Boar.svg
    pictures/animals/Dog.svg
    pictures/animals/Dragon.svg
    pictures/animals/Horse.svg
    pictures/animals/Monkey.svg
    pictures/animals/Ox.svg
    pictures/animals/Rabbit.svg
    pictures/animals/Rat.svg
    pictures/animals/Rooster.svg
    pictures/animals/Sheep.svg
    pictures/animals/Snake.svg
    pictures/animals/Tiger.svg
    pictures/colors/Black.svg
    pictures/colors/Blue.svg
    pictures/colors/Green.svg
    pictures/colors/Grey.svg
    pictures/colors/Off_White.svg
    pictures/colors/Orange.svg
    pictures/colors/Purple.svg
    pictures/colors/Red.svg
    pictures/colors/White.svg
    pictures/directions/Center.svg
    pictures/directions/East.svg
    pictures/directions/North-East.svg
    pictures/directions/North-West.svg
    pictures/directions/North.svg
    pictures/directions/South-East.svg
    pictures/directions/South-West.svg
    pictures/directions/South.svg
    pictures/directions/West.svg
    pictures/elements/Fire.svg
    pictures/elements/Metal.svg
    pictures/elements/Soil.svg
    pictures/elements/Tree.svg
    pictures/elements/Water.svg
    pictures/symbols/Earth.svg
    pictures/symbols/Fire.svg
    pictures/symbols/Heaven.svg
    pictures/symbols/Lake.svg
    pictures/symbols/Mountain.svg
    pictures/symbols/Thunder.svg
    pictures/symbols/Water.svg
    pictures/symbols/Wind.svg
    pictures/tods/Afternoon.svg
    pictures/tods/Early_Evening_-_Sunset.svg
    pictures/tods/Early_Morning.svg
    pictures/tods/Late_Evening_-_Dusk.svg
    pictures/tods/Mid-Morning.svg
    pictures/tods/Midday.svg
    pictures/tods/Morning-Sunrise.svg
    pictures/tods/Night.svg
    pictures/trigrams/CHEN.svg
    pictures/trigrams/CHIEN.svg
    pictures/trigrams/KAN.svg
    pictures/trigrams/KEN.svg
    pictures/trigrams/KUN.svg
    pictures/trigrams/LI.svg
    pictures/trigrams/SUN.svg
    pictures/trigrams/TUI.svg)
