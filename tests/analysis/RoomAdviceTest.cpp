#include "analysis/AnalysisWorld.h"
#include "analysis/modRooms.h"

#include <algorithm>

// The expected paragraphs stand here a second time, on purpose: the tests share nothing with the tables.

namespace {

using Paragraphs = std::vector<std::string>;

class RoomAdvice : public testing::Test, protected AnalysisWorld {
protected:
    RoomAdvice() { choosePerson(); }
};

bool contains(const Paragraphs& paragraphs, const std::string& words) {
    return std::ranges::any_of(paragraphs,
                               [&](const std::string& one) { return one.find(words) != one.npos; });
}

/// How the paragraph about the person begins where there is one.
const std::string mostBeneficial = "Your most beneficial directions are North, South, East and South-East. ";

} // namespace

// A paragraph is one literal, so that it can be compared with the printed page.
// clang-format off

TEST_F(RoomAdvice, AnalyzeBedroom_beneficialWithAllFeatures_writesSevenSteps) {
    const RoomRow row{.type = "1", .direction = "1", .flooring = "1", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for an adult bedroom from the center of the home are to the North, North-West and the West.  Good locations for children, students and young adults are to the South-East and East.",
        mostBeneficial +
        "This location is in one of your beneficial directions.  You should not place your bedroom in a room located "
        "North-West, North-East, West or South-West from the center of your home. "
        "It is very important that the bedroom you sleep in is located in a direction which is beneficial to you.  "
        "You should also try to position the head of your bed in one of those directions.",
        "The location of this room is to the North of the center of your home. This location has a still, spiritual chi energy which is particularly good for those who need deep rest and relaxation.  Young people may benefit from rasing the chi energy of this room by adding warm colors such as red, pink and purple.",
        "Carpet will tend to increase the yin value of the room, making it cozier and more relaxed. However, it may slow the chi in the room to the point of stagnation. Adding shiny metal furniture or glass table-tops, touches of red or other bright colors may help to keep the chi moving.",
        "This entrance is located in your success direction.  An entrance located in this direction will ensure great success in all of your business and personal endeavors.",
        "The location of this entrance is to the North of the center of your home. The energy of the North is associated with spirituality, contemplation and sex. An entrance in this direction will give the home a still, cool, yin quality and is too quiet for a comfortable home. Boost the chi with a bright red door and shiny brass fittings.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "Exposed beams in a bedroom may cause problems.  Beams tend to send cutting energy down into the room. This can drain your vitality and cause unsettled sleep.  If the beam crosses the bed from head to foot, it can effectively separate couples sleeping there, causing problems in the relationship. Try to orient the bed so that it is not directly beneath a beam.  If this is not possible, try hanging a canopy over the bed, or cover the beam with a piece of fabric. ",
        "A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled sleep and active dreams.  To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room.  Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeBedroom), expected);
}

TEST_F(RoomAdvice, AnalyzeBedroom_notBeneficial_namesTheBeneficialDirectionsTwice) {
    const RoomRow row{.type = "2", .direction = "2", .flooring = "2"};
    const Paragraphs expected = {
        "The best locations for an adult bedroom from the center of the home are to the North, North-West and the West.  Good locations for children, students and young adults are to the South-East and East.",
        mostBeneficial +
        "This location is not in one of your beneficial directions. Ideally, you should place your bedroom in a room located "
        "North, South, East or South-East from the center of your home. "
        "It is very important that the bedroom you sleep in is located in a direction which is beneficial to you.  "
        "If you cannot choose a bedroom in one of your beneficial directions, then you should try to position the head of your bed in "
        "one of those directions.",
        "The location of this room is to the South-West of the center of your home. The chi energy of this location may be too stagnant and unbalanced to provide good rest. Increase the chi energy of this location by the use of bright colors associated with the Soil Element of the South-West.  Use bright yellow, orange or other earth colors. You may also use some small touches of Fire Element colors such as red and purple. ",
        "Wood floors will tend to increase the yin value of the room, making it cozier and more relaxed. However, it is more yang than a carpeted room.  You can adjust this by using throw rugs to find just the right balance for you.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeBedroom), expected);
}

TEST_F(RoomAdvice, AnalyzeBedroom_withNoProfileLoaded_namesNothing) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    const Paragraphs advice = adviceOn({.direction = "3"}, modRooms::AnalyzeBedroom);
    ASSERT_EQ(advice.size(), 4U);
    EXPECT_EQ(advice[1],
        "Your most beneficial directions are , ,  and . "
        "This location is not in one of your beneficial directions. Ideally, you should place your bedroom in a room located "
        ", ,  or  from the center of your home. "
        "It is very important that the bedroom you sleep in is located in a direction which is beneficial to you.  "
        "If you cannot choose a bedroom in one of your beneficial directions, then you should try to position the head of your bed in "
        "one of those directions.");
}

TEST_F(RoomAdvice, AnalyzeFamilyRoom_beneficialWithAllFeatures_endsInTheSharedLowCeiling) {
    const RoomRow row{.type = "4", .direction = "3", .flooring = "3", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for a family/living room from the center of the home are to the South-East, South, South-West and the West. The location of choice should be determined by the character you wish the room to have. This will be influenced by the Element energy of that location.",
        mostBeneficial + "This location is in one of your beneficial directions. It would be a good choice for a room in which you will likely spend much of your time at home.",
        "The location of this room is to the East of the center of your home. The Tree Element energy of this location is active and creative.  It can be a lively room for entertaining but may be too active for a relaxed family room.  To soften it up, increase the yin aspect of the room by decorating with pastel shades of the Tree Element energy - green and blue, and using bamboo or soft wood furniture.",
        "Stone floors, such as polished marble may be too yang for a family room.  Use this flooring only if you plan very formal entertaining in this room.  Offset the unsettled energy by the use of plush rectangular carpets.",
        "This entrance is located in your romance direction.  An entrance located in this direction will bring romance into your home.  This can either be in the form of a new romance or a rekindling of an existing romance.",
        "The location of this entrance is to the East of the center of your home. The Tree Element energy of this location is active and focused and is good for young people who are starting a career or family. Support the Tree Element energy with a door in an East Group color of light green or a cream color. Wood fittings would be better than metal fittings, as Metal Element energy destroys the Tree Element energy.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "Beams tend to send cutting energy down into the room. This can drain your vitality and cause unsettled energy in the room. Try to orient the furniture so that it is not directly beneath a beam.  If this is not possible, try covering the beams with a piece of fabric. ",
        "A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled energy in the room. To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room. Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeFamilyRoom), expected);
}

TEST_F(RoomAdvice, AnalyzeFamilyRoom_notBeneficial_tellsHowToSit) {
    const RoomRow row{.type = "12", .direction = "7", .flooring = "4"};
    const Paragraphs expected = {
        "The best locations for a family/living room from the center of the home are to the South-East, South, South-West and the West. The location of choice should be determined by the character you wish the room to have. This will be influenced by the Element energy of that location.",
        mostBeneficial + "This location is not in one of your beneficial directions. If this is a room where you will spend a great deal of your time at home, you should arrange the furniture so that you are facing one of your most beneficial directions when you sit in this room.",
        "The location of this room is to the West of the center of your home. The trigram for the West is called 'The Joyous', and well describes this location.  It is an excellent location for a family/living room.  Decorate using colors and materials that support the Metal Element energy of this location such as rose, silver/grey and gold, rounded furniture and patterns, metal statues or other objects of art.",
        "The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, making it to yang for a family/living room.  However, using terracota tiles helps to calm the chi energy.  Still, the chi may be too active for a relaxed family/living room unless rectangular carpets or throw rugs are used to calm it.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeFamilyRoom), expected);
}

TEST_F(RoomAdvice, AnalyzeBathroom_inABeneficialDirection_warnsAndPassesOverTheBeams) {
    const RoomRow row{.type = "3", .direction = "4", .flooring = "4", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for a bathroom or laundry room from the center of the home are to the East or South-East. These locations have the Tree Element energy which is compatible with water nature of these types of rooms. ",
        std::string("Because water drains from bathrooms and laundry rooms they have a tendency to drain energy away from that location in the home. ") +
        "This room is located in your Development Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty achieving personal and spiritual development. " +
        "You can help to minimize the draining effects of a bathroom or laundry room by keeping the door closed and the toilet and washing machine lids down.  Chi tends to stagnate in these rooms, so it is important to keep the room spotlessly clean and completely free of clutter.  Store all personal hygine items in cabinets or drawers, out of sight. If the room has a window, allow as much light as possible to enter the room by pulling the curtains back, and hanging a translucent shower curtain if necessary.",
        "The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is in balance with the water energy of this room. Keep the chi from stagnating by keeping the room clean, and decorating with Tree Element items such as tall plants, bamboo fixtures, and green and blue colors.",
        "The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, which is good for rooms that get very little light.  Using terracota tiles helps to calm the chi energy, which would be better for rooms that do get a lot of light.  In both cases, it's a good idea to use mats to help balance the energy in the room.",
        "This entrance is located in your personal and professional development direction.  An entrance located in this direction ensures healthy growth and development in your life.",
        "The location of this entrance is to the South-East of the center of your home. The Tree Element energy of this location is calm and creative and is good for young people who are growing and attending school. Support the Tree Element energy with a door in an East Group color of dark green, blue, or a cream color. Wood fittings would be better than metal fittings, as Metal Element energy destroys the Tree Element energy.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled energy in the room. To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room. Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeBathroom), expected);
}

TEST_F(RoomAdvice, AnalyzeBathroom_inNoBeneficialDirection_joinsTheFirstAndThirdPiece) {
    const RoomRow row{.type = "11", .direction = "5", .flooring = "1"};
    const Paragraphs expected = {
        "The best locations for a bathroom or laundry room from the center of the home are to the East or South-East. These locations have the Tree Element energy which is compatible with water nature of these types of rooms. ",
        std::string("Because water drains from bathrooms and laundry rooms they have a tendency to drain energy away from that location in the home. ") +
        "You can help to minimize the draining effects of a bathroom or laundry room by keeping the door closed and the toilet and washing machine lids down.  Chi tends to stagnate in these rooms, so it is important to keep the room spotlessly clean and completely free of clutter.  Store all personal hygine items in cabinets or drawers, out of sight. If the room has a window, allow as much light as possible to enter the room by pulling the curtains back, and hanging a translucent shower curtain if necessary.",
        "The location of this room is in the center of your home. The center location is the most powerful location in a home.  Locating a bathroom here can have disastrous results, as the energy of the home will drain out through the toilet, shower or washing machine drains. If you have a bathroom in this location, try not to use it.  Or, if that is not possible, try hanging a mirror on the outside of the (closed) door to make the room 'disappear'.Ideally, the center of your home should be kept as empty and free of clutter as possible.",
        "Carpet will tend to slow the chi energy of a room that already has a tendency to stagnate the flow of chi. Therefore, carpet is not recommended for this room.  If the room has windows and good exposure to sunlight, then throw rugs or mats made from natural plant fibers over a tile floor are preferable. ",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeBathroom), expected);
}

TEST_F(RoomAdvice, AnalyzeBathroom_eachBeneficialDirection_hasAWarningOfItsOwn) {
    EXPECT_TRUE(contains(adviceOn({.direction = "1"}, modRooms::AnalyzeBathroom),
        "This room is located in your Success Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty achieving success. "));
    EXPECT_TRUE(contains(adviceOn({.direction = "9"}, modRooms::AnalyzeBathroom),
        "This room is located in your Health Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you lack vitality and suffer from frequent illness. "));
    EXPECT_TRUE(contains(adviceOn({.direction = "3"}, modRooms::AnalyzeBathroom),
        "This room is located in your Romance Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty forming or maintaining romantic relationships. "));
}

TEST_F(RoomAdvice, AnalyzeDiningRoom_withAllFeatures_passesOverTheBeams) {
    const RoomRow row{.type = "5", .direction = "6", .flooring = "2", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for a dining room from the center of the home are to the West, North-West, East or South-East. The East and South-East are associated with Sunrise and the Morning time of day and would be best suited for meals early in the day. The West and North-West are associated with Sunset and Dusk and would be best suited for evening meals.",
        mostBeneficial +
        "Try to arrange the dining room table so that your chair faces one of these directions.",
        "The location of this room is to the North-West of the center of your home. This location has a very formal energy and is best suited for a formal dining room. If you wish to enhance the formal energy of the room, boost the Metal Element energy of the North-West by using grey/silver table cloths, place mats or napkins.  Polished metal cutlery and metal or reflective tables and chairs will also help.  If you wish to give the room a warmer, friendlier atmosphere, paint the walls either rose or rusty red color and use touches of red or purple in the place settings.",
        "Wood floors will tend to increase the yin value of the room, bringing more Tree Element energy in. It is a good choice for a dining room, as it neither stagnates nor agitates the chi here. ",
        "This entrance is located in your unlucky direction.  An entrance located in this direction will bring minor bad luck into your home such as accidents, irritations and arguments.",
        "The location of this entrance is to the North-West of the center of your home. This location is associated with leadership and responsibility, and will bring order and control into your life.A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled energy in the room. To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room. Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeDiningRoom), expected);
}

TEST_F(RoomAdvice, AnalyzeKitchen_withAllFeatures_putsTheEntranceAheadOfTheClosingParagraph) {
    const RoomRow row{.type = "6", .direction = "8", .flooring = "3", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for a kitchen from the center of the home are to the East or South-East. The East and South-East are associated with activitiy, growth and creativity and will produce nourishing, healthy meals.  These are also the best directions to face while you are preparing your meals. ",
        "The location of this room is to the North-East of the center of your home. The energy of this location is unstable and unpredictable and is a poor choice for locating a kitchen. Calm the cold harsh chi with yin items such as wooden cooking utensils, tall wooden salt and pepper shakers, or pot holders with vertical stripes in pastel greens or blues. ",
        "Stone floors, such as polished marble, keep the chi active and circulating. If your kitchen is to the South, you may need to switch to terracotta tiles, slate or wooden floors to calm the chi in that volatile direction.",
        "This entrance is located in your illness or killing direction.  An entrance located in this direction will bring energy into your home that will drain your vitality and threaten your health.",
        "The location of this entrance is to the North-East of the center of your home. The energy of this location is sometimes harsh and piercing. An entrance here will bring this unstable quickly changing energy into the house. A Bright white door will help to deflect this energy away from the home. You may also want to hang a pa kua mirror outside and above the door pointing North-East.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "Ideally, the stove and the sink or other water feature such as a dishwasher or refridgerator should not be placed next to each other in the room. The fire energy of the stove and the water energy of the sink will clash creating a great imbalance of energy. ",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeKitchen), expected);
}

TEST_F(RoomAdvice, AnalyzeHomeOffice_withAllFeatures_namesTwoDirectionsForTheDesk) {
    const RoomRow row{.type = "7", .direction = "9", .flooring = "1", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The best locations for a home office from the center of the home are to the North-West, East, South-East or South. ",
        mostBeneficial +
        "Try to arrange the your desk so that your chair faces either your Success Direction - North, "
        "or your Development Direction - South-East. ",
        "The location of this room is to the South of the center of your home. The Fire Element energy of this location will help attract recognition for your work. Support the fiery chi here by decorating in the Fire Element color purple. Try using angular or pointed office furniture, bright desk lights and pointed leafed plants placed well away from the desk and chair. ",
        "Carpet or rugs will slow the flow of chi in the room, and may tend to dull the active character of the home office. If you must have a rug here, place it over a polished wood, tile or stone floor to help balance the chi.",
        "This entrance is located in your good health direction.  An entrance located in this direction will ensure vitality and good health for you.",
        "The location of this entrance is to the South of the center of your home. The Fire Element energy of this location makes it lively location good for gaining notoriety. However, it may be a little too active for a happy home, leading to disharmony in the family. A door in an East Group color of green or blue, or a in the South's color of purple will be best here. Wood fittings would be better than metal fittings, as Metal Element energy is destroyed by the Fire Element energy of the South.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "Exposed beams in a home office may cause problems.  Beams tend to send cutting energy down into the room. This can drain your vitality and cause a lack of concentration and focus. If the beam crosses the desk it can cause separation in business relationships. Try to orient the desk so that it is not directly beneath a beam. If this is not possible, try to cover the beam with a tapestry or piece of fabric. ",
        "A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled energy in the room. To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room. Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeHomeOffice), expected);
}

TEST_F(RoomAdvice, AnalyzeHallWay_withAllFeatures_putsTheEntranceFirst) {
    const RoomRow row{.type = "8", .direction = "7", .flooring = "1", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The location of hallways, in general, is not too critical.  However, if the hallway is part of the entrance to the home, the location of the room and the entrance will bring the type of energy from that location into the home.  ",
        "This entrance is located in your obstacle direction.  An entrance located in this direction will bring a host of obstacles to business and personal development into your home.",
        "The location of this entrance is to the West of the center of your home. An entrance in this location will invite financial gain, romance and joy into the home but it can also lead to a lack of motivation. A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
        "A long hallway or entrance way will have a tendency to channel chi quickly through the house. This is particularly bad if the hall runs from the front door to the back door.  This will cause all of the energy entering the house to flow straight through and out the other side of the house. If this is true for your hallway, place a screen between the front door and back doors to interrupt the flow of chi and encourage it to circulate around the house.  ",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeHallWay), expected);
}

TEST_F(RoomAdvice, AnalyzeCloset_withAllFeatures_putsTheEntranceLast) {
    const RoomRow row{.type = "10", .direction = "2", .flooring = "1", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "The location of closets or store rooms are not too critical, because you will not spend too much of your time in these rooms.  Since the North-East is unfavorable for most other types of rooms, it is a good place to locate storage space or closets. ",
        "The greatest danger for closets and storage rooms is that the energy will tend to stagnate here.  This is particularly true if there is any clutter.  Stack boxes in uniform sizes, leaving space between one stack of boxes and the next.  Hang all hangable clothes, and organize any shoes that are present.  Try to keep the floor as clear as possible by using a hanging shoe tree if available.",
        "Be sure to clean and vacuum this room as often as you do your other rooms.  And at least once a year, you should go through the items here and discard any item that you do not need, or that you do not absolutely love. ",
        "This entrance is located in your destructive or total loss direction.  An entrance located in this direction will have the most negative impact on you.  It may help bring about the failure of business or personal relationships or even an untimely death.",
        "The location of this entrance is to the South-West of the center of your home. The chi energy of this location is slow and sometimes stagnant or unstable.  A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeCloset), expected);
}

TEST_F(RoomAdvice, AnalyzeGym_withAllFeatures_putsTheEntranceLast) {
    const RoomRow row{.type = "13", .direction = "5", .flooring = "1", .entrance = "True", .beams = "True", .lowCeiling = "True"};
    const Paragraphs expected = {
        "Gym equipment is often set up in rooms in the house with other functions, such as the bedroom.  If you have a room set aside for gym equipment, the Center of the house is a good location for this room.  The Center of the house has the most intense chi energy, and could help energize your workouts.",
        "Keep workout equipment orderly and clean.  Place dumbbells and weights in a rack if possible.  ",
        "",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
    };
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeGym), expected);
}

TEST_F(RoomAdvice, AnalyzeEntranceWay_northWest_hasNoBlankBetweenItsTwoSentences) {
    putRooms({{.direction = "6"}});
    modRooms::AnalyzeEntranceWay(1, report.vp);
    const Paragraphs expected = {
        "This entrance is located in your unlucky direction.  An entrance located in this direction will bring minor bad luck into your home such as accidents, irritations and arguments.",
        "The location of this entrance is to the North-West of the center of your home. This location is associated with leadership and responsibility, and will bring order and control into your life.A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
    };
    EXPECT_EQ(report.arguments(QStringLiteral("Write")), expected);
}

TEST_F(RoomAdvice, AnalyzeEntranceWay_center_leavesAnEmptyParagraphAndTheClosingOneOnly) {
    putRooms({{.direction = "5"}});
    modRooms::AnalyzeEntranceWay(1, report.vp);
    const Paragraphs expected = {
        "",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
    };
    EXPECT_EQ(report.arguments(QStringLiteral("Write")), expected);
}

TEST_F(RoomAdvice, AnalyzeEntranceWay_centerOfAPersonWhoseDirectionItIs_isJudged) {
    Global::CurrentProfile->oPersonalDirection.OBSTACLEDIRECTIONID = 5;
    putRooms({{.direction = "5"}});
    modRooms::AnalyzeEntranceWay(1, report.vp);
    const Paragraphs expected = {
        "This entrance is located in your obstacle direction.  An entrance located in this direction will bring a host of obstacles to business and personal development into your home.",
        "An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ",
    };
    EXPECT_EQ(report.arguments(QStringLiteral("Write")), expected);
}

// clang-format on

TEST_F(RoomAdvice, AnalyzeEntranceWay_unknownDirection_leavesNoDirectionParagraph) {
    for (const char* direction : {"0", "10", "-1"}) {
        putRooms({{.direction = direction}});
        report.clear();
        modRooms::AnalyzeEntranceWay(1, report.vp);
        const Paragraphs written = report.arguments(QStringLiteral("Write"));
        ASSERT_EQ(written.size(), 2U) << direction;
        EXPECT_EQ(written[0], "") << direction;
    }
}

TEST_F(RoomAdvice, AnalyzeEntranceWay_drawsNothingAndSetsNoPosition) {
    putRooms({{.direction = "1"}});
    modRooms::AnalyzeEntranceWay(1, report.vp);
    for (const SurfaceCall& call : report.calls()) {
        EXPECT_EQ(call.op, QStringLiteral("Write"));
    }
    EXPECT_EQ(report.calls().size(), 3U);
}

TEST_F(RoomAdvice, AnalyzeEntranceWay_firstOfTwoMatchingDirectionsSpeaks) {
    Global::CurrentProfile->oPersonalDirection.DESTRUCTIONDIRECTIONID = 1;
    putRooms({{.direction = "1"}});
    modRooms::AnalyzeEntranceWay(1, report.vp);
    EXPECT_TRUE(contains(report.arguments(QStringLiteral("Write")), "your success direction"));
}

TEST_F(RoomAdvice, AnalyzeBedroom_northOfAPersonWhoseHealthItIs_isBeneficial) {
    Global::CurrentProfile->oPersonalDirection.SUCCESSDIRECTIONID = 2;
    Global::CurrentProfile->oPersonalDirection.HEALTHDIRECTIONID = 1;
    EXPECT_TRUE(contains(adviceOn({.direction = "1"}, modRooms::AnalyzeBedroom),
                         "This location is in one of your beneficial directions.  "));
}

TEST_F(RoomAdvice, AnalyzeBedroom_center_isNotBeneficialButGetsItsWholeParagraph) {
    const Paragraphs advice = adviceOn({.direction = "5"}, modRooms::AnalyzeBedroom);
    ASSERT_EQ(advice.size(), 4U);
    EXPECT_TRUE(
        advice[1].starts_with("Your most beneficial directions are North, South, East and South-East. "
                              "This location is not in one of your beneficial directions. "));
    EXPECT_TRUE(advice[1].ends_with("one of those directions."));
}

TEST_F(RoomAdvice, AnalyzeBedroom_centerOfAPersonWhoseDirectionItIs_isBeneficial) {
    Global::CurrentProfile->oPersonalDirection.DEVELOPMENTDIRECTIONID = 5;
    EXPECT_TRUE(contains(adviceOn({.direction = "5"}, modRooms::AnalyzeBedroom),
                         "This location is in one of your beneficial directions.  "));
}

TEST_F(RoomAdvice, AnalyzeFamilyRoom_typesFourAndTwelve_giveTheSameText) {
    EXPECT_EQ(adviceOn({.type = "4", .direction = "9", .entrance = "True"}, modRooms::AnalyzeFamilyRoom),
              adviceOn({.type = "12", .direction = "9", .entrance = "True"}, modRooms::AnalyzeFamilyRoom));
}

TEST_F(RoomAdvice, AnalyzeBathroom_neverNamesAProblematicDirection) {
    // With names that no sentence uses, any that is named shows.
    cPersonalDirection& person = Global::CurrentProfile->oPersonalDirection;
    for (QString* name : {&person.BADLUCKDIRECTION, &person.OBSTACLEDIRECTION, &person.ILLNESSDIRECTION,
                          &person.DESTRUCTIONDIRECTION}) {
        *name = QStringLiteral("Nowhere");
    }
    for (const char* direction : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        const Paragraphs advice = adviceOn({.direction = direction}, modRooms::AnalyzeBathroom);
        EXPECT_EQ(advice.size(), 4U) << direction;
        EXPECT_FALSE(contains(advice, "Nowhere")) << direction;
    }
}

TEST_F(RoomAdvice, AnalyzeBathroom_exposedBeams_changeNothing) {
    EXPECT_EQ(adviceOn({.direction = "2", .beams = "True"}, modRooms::AnalyzeBathroom),
              adviceOn({.direction = "2", .beams = "False"}, modRooms::AnalyzeBathroom));
}

TEST_F(RoomAdvice, AnalyzeDiningRoom_personsParagraphIsTheSameWhateverTheDirection) {
    EXPECT_EQ(adviceOn({.direction = "1"}, modRooms::AnalyzeDiningRoom).at(1),
              adviceOn({.direction = "2"}, modRooms::AnalyzeDiningRoom).at(1));
}

TEST_F(RoomAdvice, AnalyzeHomeOffice_personsParagraphIsTheSameWhateverTheDirection) {
    EXPECT_EQ(adviceOn({.direction = "1"}, modRooms::AnalyzeHomeOffice).at(1),
              adviceOn({.direction = "5"}, modRooms::AnalyzeHomeOffice).at(1));
}

TEST_F(RoomAdvice, AnalyzeKitchen_isTheSameForEveryProfileAndForNone) {
    const RoomRow row{.direction = "7", .flooring = "2"};
    const Paragraphs withPerson = adviceOn(row, modRooms::AnalyzeKitchen);
    Global::CurrentProfile = std::make_unique<cProfile>();
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeKitchen), withPerson);
    Global::CurrentProfile.reset();
    EXPECT_EQ(adviceOn(row, modRooms::AnalyzeKitchen), withPerson);
}

// What an unknown id does, in every analysis that has paragraphs by direction and by flooring.

struct KeyedAnalysis {
    const char* name;
    void (*analyze)(qint32, ReportSurface&);
    /// Where the paragraphs stand after the one beside the chart.
    std::size_t direction;
    std::size_t count;
};

class UnknownId : public testing::TestWithParam<KeyedAnalysis>, protected AnalysisWorld {};

TEST_P(UnknownId, unknownFlooring_leavesAnEmptyParagraph) {
    for (const char* flooring : {"0", "5", "-1"}) {
        const Paragraphs advice = adviceOn({.direction = "1", .flooring = flooring}, GetParam().analyze);
        ASSERT_EQ(advice.size(), GetParam().count) << flooring;
        EXPECT_NE(advice[GetParam().direction], "");
        EXPECT_EQ(advice[GetParam().direction + 1], "");
    }
}

TEST_P(UnknownId, unknownDirection_leavesAnEmptyParagraph) {
    for (const char* direction : {"10", "-1", "99"}) {
        const Paragraphs advice = adviceOn({.direction = direction}, GetParam().analyze);
        ASSERT_EQ(advice.size(), GetParam().count) << direction;
        EXPECT_EQ(advice[GetParam().direction], "");
        EXPECT_NE(advice[GetParam().direction + 1], "");
    }
}

INSTANTIATE_TEST_SUITE_P(RoomAdvice, UnknownId,
                         testing::Values(KeyedAnalysis{"Bedroom", modRooms::AnalyzeBedroom, 2, 4},
                                         KeyedAnalysis{"FamilyRoom", modRooms::AnalyzeFamilyRoom, 2, 4},
                                         KeyedAnalysis{"Bathroom", modRooms::AnalyzeBathroom, 2, 4},
                                         KeyedAnalysis{"DiningRoom", modRooms::AnalyzeDiningRoom, 2, 4},
                                         KeyedAnalysis{"Kitchen", modRooms::AnalyzeKitchen, 1, 4},
                                         KeyedAnalysis{"HomeOffice", modRooms::AnalyzeHomeOffice, 2, 4}),
                         [](const auto& tested) { return std::string(tested.param.name); });
