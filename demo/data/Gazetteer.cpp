#include "data/Gazetteer.h"

#include <algorithm>
#include <cmath>

namespace demo {

namespace {

// Name, kind, value, street, district, kilometres east and north of the centre of Ellery.
constexpr Place places[] = {
    {"Ellery", "place", "city", "", "", 0.0, 0.0},
    {"Brackenmouth", "place", "town", "", "", 31.24, 13.42},
    {"Upper Wren", "place", "town", "", "", -25.96, 18.48},
    {"Saint Odile", "place", "town", "", "", -36.3, -11.44},
    {"Cinderford Bay", "place", "town", "", "", 21.12, -27.94},
    {"Marrow Down", "place", "town", "", "", 6.82, 39.38},
    {"Tarn Hollow", "place", "town", "", "", -14.08, -33.66},
    {"Oskøy", "place", "town", "", "", 47.74, -8.36},
    {"Great Pell", "place", "town", "", "", -43.78, 32.12},
    {"Old Harbour", "place", "suburb", "", "Old Harbour", 0.84, -1.12},
    {"Saltmarsh", "place", "suburb", "", "Saltmarsh", 8.12, -4.48},
    {"Lanternhill", "place", "suburb", "", "Lanternhill", -4.76, 4.2},
    {"Quarry Side", "place", "suburb", "", "Quarry Side", -8.68, -2.52},
    {"Northgate", "place", "suburb", "", "Northgate", 1.68, 8.4},
    {"Fennel Park", "place", "suburb", "", "Fennel Park", 6.16, 3.92},
    {"Millrace", "place", "suburb", "", "Millrace", -2.52, -7.56},
    {"Tidewater", "place", "suburb", "", "Tidewater", 4.48, -8.68},
    {"Quayside", "highway", "secondary", "", "Old Harbour", -0.06, -2.69},
    {"Lantern Street", "highway", "residential", "", "Saltmarsh", 8.88, -6.38},
    {"Ropewalk Lane", "highway", "residential", "", "Lanternhill", -4.59, 3.61},
    {"Beacon Road", "highway", "secondary", "", "Quarry Side", -10.92, -2.49},
    {"Saltpan Way", "highway", "residential", "", "Northgate", -0.64, 8.09},
    {"Orchard Rise", "highway", "residential", "", "Fennel Park", 4.0, 2.1},
    {"Kiln Lane", "highway", "secondary", "", "Millrace", -2.91, -6.1},
    {"Foundry Street", "highway", "residential", "", "Tidewater", 2.58, -9.91},
    {"Heron Avenue", "highway", "residential", "", "Old Harbour", 1.48, 0.9},
    {"Mill Bridge Road", "highway", "secondary", "", "Saltmarsh", 8.51, -4.96},
    {"Compass Row", "highway", "residential", "", "Lanternhill", -2.35, 2.16},
    {"Juniper Close", "highway", "residential", "", "Quarry Side", -6.86, -3.47},
    {"Harbour Parade", "highway", "secondary", "", "Northgate", -0.11, 6.69},
    {"Tollgate Road", "highway", "residential", "", "Fennel Park", 5.21, 5.35},
    {"Magpie Lane", "highway", "residential", "", "Millrace", -4.12, -7.2},
    {"Cooper's Yard", "highway", "secondary", "", "Tidewater", 5.18, -9.24},
    {"Windlass Street", "highway", "residential", "", "Old Harbour", 1.09, -3.08},
    {"Ember Hill", "highway", "residential", "", "Saltmarsh", 5.91, -5.8},
    {"Ferryman's Walk", "highway", "secondary", "", "Lanternhill", -3.86, 3.86},
    {"Larkspur Drive", "highway", "residential", "", "Quarry Side", -9.6, -2.13},
    {"Old Quarry Road", "highway", "residential", "", "Northgate", 1.46, 7.5},
    {"Signal Street", "highway", "secondary", "", "Fennel Park", 7.64, 4.82},
    {"Thimble Court", "highway", "residential", "", "Millrace", -3.81, -7.22},
    {"Chandler Street", "highway", "residential", "", "Tidewater", 4.62, -7.0},
    {"Northgate Road", "highway", "secondary", "", "Old Harbour", 1.99, -2.07},
    {"Meridian Avenue", "highway", "residential", "", "Saltmarsh", 10.53, -6.19},
    {"Skylark Crescent", "highway", "residential", "", "Lanternhill", -5.18, 5.35},
    {"Tanner's Bridge", "highway", "secondary", "", "Quarry Side", -10.44, -2.58},
    {"Wicker Street", "highway", "residential", "", "Northgate", -0.64, 9.16},
    {"Rue de l'Étoile", "highway", "residential", "", "Fennel Park", 7.5, 4.26},
    {"Market Square", "highway", "secondary", "", "Millrace", -0.62, -8.4},
    {"Cobalt Road", "highway", "residential", "", "Tidewater", 5.46, -8.26},
    {"Sailor's \"Half \\ Moon\"", "amenity", "pub", "Quayside", "Old Harbour", -0.08, -2.61},
    {"Market Hall", "amenity", "marketplace", "Rue de l'Étoile", "Fennel Park", 7.14, 3.92},
    {"Ellery Central Station", "railway", "station", "Ember Hill", "Saltmarsh", 5.88, -5.66},
    {"Northgate Station", "railway", "station", "Beacon Road", "Quarry Side", -10.72, -2.66},
    {"Harbour Ferry Terminal", "amenity", "ferry_terminal", "Wicker Street", "Northgate", -0.81,
        9.07},
    {"Ellery Airfield", "aeroway", "aerodrome", "Thimble Court", "Millrace", -4.2, -7.25},
    {"Lighthouse Museum", "tourism", "museum", "Compass Row", "Lanternhill", -2.27, 2.16},
    {"Maritime Library", "amenity", "library", "Tollgate Road", "Fennel Park", 5.43, 5.04},
    {"Saint Bride Hospital", "amenity", "hospital", "Cooper's Yard", "Tidewater", 5.1, -8.88},
    {"Fennel Park Gardens", "leisure", "park", "Cobalt Road", "Tidewater", 5.1, -8.32},
    {"Quarry Lake", "natural", "water", "Ember Hill", "Saltmarsh", 6.24, -5.52},
    {"Ellery Town Hall", "amenity", "townhall", "Ember Hill", "Saltmarsh", 6.08, -5.38},
    {"Tidewater Theatre", "amenity", "theatre", "Northgate Road", "Old Harbour", 2.38, -2.35},
    {"Café Morrow", "amenity", "cafe", "Juniper Close", "Quarry Side", -7.14, -3.33},
    {"The Copper Kettle", "amenity", "cafe", "Quayside", "Old Harbour", -0.06, -2.6},
    {"Joe's Diner", "amenity", "restaurant", "Windlass Street", "Old Harbour", 0.9, -3.39},
    {"Anchor & Thistle", "amenity", "pub", "Chandler Street", "Tidewater", 4.7, -7.14},
    {"Lanternhill School", "amenity", "school", "Heron Avenue", "Old Harbour", 1.65, 0.9},
    {"Ellery Polytechnic", "amenity", "university", "Beacon Road", "Quarry Side", -10.95, -2.18},
    {"Millrace Mall", "shop", "mall", "Meridian Avenue", "Saltmarsh", 10.44, -6.27},
    {"Brickfield Stadium", "leisure", "stadium", "Market Square", "Millrace", -0.5, -8.76},
    {"Saltmarsh Reserve", "leisure", "nature_reserve", "Saltpan Way", "Northgate", -0.22, 8.04},
    {"Alder & Sons Joinery", "office", "company", "Foundry Street", "Tidewater", 2.44, -10.28},
    {"Foundry Business Park", "landuse", "commercial", "Quayside", "Old Harbour", 0.0, -2.66},
    {"North Depot", "building", "warehouse", "Chandler Street", "Tidewater", 4.7, -7.36},
    {"Kiln Lane Workshop", "shop", "car_repair", "Tollgate Road", "Fennel Park", 5.29, 5.04},
    {"Windmill Bakery", "shop", "bakery", "Windlass Street", "Old Harbour", 1.48, -3.0},
    {"Hotel Meridian", "tourism", "hotel", "Market Square", "Millrace", -0.92, -8.12},
    {"Gull Rock Campsite", "tourism", "camp_site", "Rue de l'Étoile", "Fennel Park", 7.48, 4.09},
    {"Ellery Observatory", "tourism", "attraction", "Mill Bridge Road", "Saltmarsh", 8.18, -5.1},
    {"Tarn View Point", "tourism", "viewpoint", "Windlass Street", "Old Harbour", 1.06, -2.91},
    {"Fern Valley Clinic", "amenity", "clinic", "Lantern Street", "Saltmarsh", 8.62, -5.99},
    {"Beacon Court House", "amenity", "courthouse", "Chandler Street", "Tidewater", 4.31, -6.97},
    {"Harbour Fuel", "amenity", "fuel", "Lantern Street", "Saltmarsh", 7.74, -6.32},
    {"Beacon Filling Station", "amenity", "fuel", "Orchard Rise", "Fennel Park", 3.49, 2.44},
    {"Three Pumps", "amenity", "fuel", "Chandler Street", "Tidewater", 5.61, -9.37},
    {"Tollgate Fuel", "amenity", "fuel", "Magpie Lane", "Millrace", -6.62, -5.22},
    {"Kestrel Stop", "amenity", "fuel", "Signal Street", "Fennel Park", 6.51, 3.52},
    {"Old Mill Garage", "amenity", "fuel", "Harbour Parade", "Northgate", 2.72, 6.82},
    {"Saltpan Service", "amenity", "fuel", "Magpie Lane", "Millrace", -2.62, -7.32},
    {"Meridian Fuel", "amenity", "fuel", "Lantern Street", "Saltmarsh", 10.02, -7.95},
    {"Quarry Road Garage", "amenity", "fuel", "Market Square", "Millrace", -0.11, -6.32},
    {"Lighthouse Fuel", "amenity", "fuel", "Thimble Court", "Millrace", -3.74, -5.61},
    {"Wren Valley Stop", "amenity", "fuel", "Thimble Court", "Millrace", -2.53, -9.61},
    {"Orchard Garage", "amenity", "fuel", "Magpie Lane", "Millrace", -3.11, -6.75},
    {"Signal Fuel", "amenity", "fuel", "Signal Street", "Fennel Park", 6.36, 2.49},
    {"Copperline", "amenity", "fuel", "Quayside", "Old Harbour", 1.82, -2.69},
    {"Voltarium Quayside", "amenity", "charging_station", "Orchard Rise", "Fennel Park", 5.42,
        3.76},
    {"Lumen Park Chargers", "amenity", "charging_station", "Northgate Road", "Old Harbour", 3.32,
        0.34},
    {"Brightbay Hub", "amenity", "charging_station", "Market Square", "Millrace", -0.83, -6.9},
    {"Amber Grid North", "amenity", "charging_station", "Signal Street", "Fennel Park", 7.02, 7.45},
    {"Station Square Chargers", "amenity", "charging_station", "Meridian Avenue", "Saltmarsh",
        12.47, -8.08},
    {"Lanternhill Lumen", "amenity", "charging_station", "Orchard Rise", "Fennel Park", 2.31, 0.35},
    {"Millrace Mall Chargers", "amenity", "charging_station", "Heron Avenue", "Old Harbour", 3.51,
        0.65},
    {"Tidewater Volt", "amenity", "charging_station", "Rue de l'Étoile", "Fennel Park", 8.42, 2.92},
    {"Polytechnic Charge Point", "amenity", "charging_station", "Market Square", "Millrace", -0.44,
        -9.1},
    {"Greenspark Depot", "amenity", "charging_station", "Heron Avenue", "Old Harbour", 0.31, 1.59},
    {"Hotel Meridian Chargers", "amenity", "charging_station", "Kiln Lane", "Millrace", -2.44,
        -3.64},
    {"Airfield Lumen", "amenity", "charging_station", "Tanner's Bridge", "Quarry Side", -9.07,
        -0.6},
    {"Amber Grid South", "amenity", "charging_station", "Tollgate Road", "Fennel Park", 6.67, 7.65},
    {"Sundial Hub", "amenity", "charging_station", "Cooper's Yard", "Tidewater", 6.29, -11.13},
    {"Lane closed on Harbour Parade", "hazard", "traffic", "Harbour Parade", "Northgate", -0.08,
        6.97},
    {"Roadworks on Tollgate Road", "hazard", "traffic", "Tollgate Road", "Fennel Park", 4.84, 5.54},
    {"Broken-down lorry on Beacon Road", "hazard", "traffic", "Beacon Road", "Quarry Side", -10.58,
        -2.35},
    {"Slow traffic at Market Square", "hazard", "traffic", "Market Square", "Millrace", -0.36,
        -8.37},
    {"Ferry queue on Quayside", "hazard", "traffic", "Quayside", "Old Harbour", 0.22, -2.38},
    {"Market day around Wicker Street", "hazard", "traffic", "Wicker Street", "Northgate", -0.95,
        8.88},
    {"Ice warning on Ember Hill", "hazard", "traffic", "Ember Hill", "Saltmarsh", 5.91, -5.49},
    {"Bridge works on Tanner's Bridge", "hazard", "traffic", "Tanner's Bridge", "Quarry Side",
        -10.22, -2.49},
    {"Signals out on Signal Street", "hazard", "traffic", "Signal Street", "Fennel Park", 7.87,
        4.51},
    {"Cycle race on Meridian Avenue", "hazard", "traffic", "Meridian Avenue", "Saltmarsh", 10.22,
        -6.08},
    {"Flooded underpass on Saltpan Way", "hazard", "traffic", "Saltpan Way", "Northgate", -0.95,
        7.73},
    {"Oil on the road on Foundry Street", "hazard", "traffic", "Foundry Street", "Tidewater", 2.72,
        -9.88},
};

constexpr double degree = 3.14159265358979323846 / 180; // In radians.
constexpr double kilometresPerDegree = 111.195;

} // namespace

double Place::latitude() const
{
    return cityCentre.latitude + north / kilometresPerDegree;
}

double Place::longitude() const
{
    return cityCentre.longitude
        + east / (kilometresPerDegree * std::cos(cityCentre.latitude * degree));
}

std::span<const Place> gazetteer()
{
    return places;
}

std::vector<Place> placesOfValue(std::string_view value)
{
    std::vector<Place> found;
    std::copy_if(std::begin(places), std::end(places), std::back_inserter(found),
        [&](const Place& place) { return place.value == value; });
    return found;
}

double kilometresBetween(Coordinate first, Coordinate second)
{
    const double mean = (first.latitude + second.latitude) / 2 * degree;
    const double north = first.latitude - second.latitude;
    const double east = std::remainder(first.longitude - second.longitude, 360) * std::cos(mean);
    return std::hypot(north, east) * kilometresPerDegree;
}

} // namespace demo
